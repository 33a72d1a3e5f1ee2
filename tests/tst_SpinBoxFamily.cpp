// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <Tessera/CISpinBox/CI16SpinBox.h>
#include <Tessera/CISpinBox/CI32SpinBox.h>
#include <Tessera/CISpinBox/CI64SpinBox.h>
#include <Tessera/CISpinBox/CI8SpinBox.h>
#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/CISpinBox/CU64SpinBox.h>
#include <Tessera/CISpinBox/CU8SpinBox.h>

#include <QMetaMethod>
#include <QMetaType>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <cstddef>
#include <memory>
#include <vector>

using namespace nsUI;

namespace {

//! Reaches the private isSigned() of a box: an explicit instantiation may name private members.
template <class Box, bool (*function)()>
struct PrivateReach
{
    friend bool isSigned(const Box*) { return function(); }
};
bool isSigned(const CI8SpinBox*);
bool isSigned(const CI16SpinBox*);
bool isSigned(const CI32SpinBox*);
bool isSigned(const CI64SpinBox*);
bool isSigned(const CU8SpinBox*);
bool isSigned(const CU16SpinBox*);
bool isSigned(const CU32SpinBox*);
bool isSigned(const CU64SpinBox*);
template struct PrivateReach<CI8SpinBox, &CI8SpinBox::isSigned>;
template struct PrivateReach<CI16SpinBox, &CI16SpinBox::isSigned>;
template struct PrivateReach<CI32SpinBox, &CI32SpinBox::isSigned>;
template struct PrivateReach<CI64SpinBox, &CI64SpinBox::isSigned>;
template struct PrivateReach<CU8SpinBox, &CU8SpinBox::isSigned>;
template struct PrivateReach<CU16SpinBox, &CU16SpinBox::isSigned>;
template struct PrivateReach<CU32SpinBox, &CU32SpinBox::isSigned>;
template struct PrivateReach<CU64SpinBox, &CU64SpinBox::isSigned>;

QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

//! One of the eight classes, and what sets it apart.
struct Relative
{
    QString name;
    QString type; //!< as the header writes the value type
    int bits;
    bool isSigned;
    bool saysItIsSigned;
    const QMetaObject* pMetaObject;
    std::unique_ptr<QAbstractSpinBox> (*make)();
};

template <class Box>
Relative relative(const QString& type, int bits, bool signedType)
{
    return {QString::fromLatin1(Box::staticMetaObject.className()).mid(6),
            type,
            bits,
            signedType,
            isSigned(static_cast<const Box*>(nullptr)),
            &Box::staticMetaObject,
            [] { return std::unique_ptr<QAbstractSpinBox>(new Box); }};
}

const std::vector<Relative>& family()
{
    static const std::vector<Relative> relatives = {
        relative<CI8SpinBox>("signed char"_s, 8, true),     relative<CI16SpinBox>("short"_s, 16, true),
        relative<CI32SpinBox>("int"_s, 32, true),           relative<CI64SpinBox>("long long"_s, 64, true),
        relative<CU8SpinBox>("unsigned char"_s, 8, false),  relative<CU16SpinBox>("unsigned short"_s, 16, false),
        relative<CU32SpinBox>("unsigned int"_s, 32, false), relative<CU64SpinBox>("unsigned long long"_s, 64, false),
    };
    return relatives;
}

void eachRelative()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < family().size(); ++i)
        QTest::newRow(qPrintable(family().at(i).name)) << static_cast<int>(i);
}

const Relative& current()
{
    QFETCH(int, index);
    return family().at(static_cast<std::size_t>(index));
}

//! A header or source of the family, as it stands in the tree.
QString fileOf(const Relative& relative, const QString& suffix)
{
    const QString path =
        "%1/src/Tessera/CISpinBox/%2.%3"_s.arg(QStringLiteral(TESSERA_SOURCE_DIR), relative.name, suffix);
    return QString::fromUtf8(TestSupport::contentOf(path));
}

/*!
    A text of the class without what may set it apart from the others of its signedness, and without white space.
    The value type becomes that of 32 bits: where that is int, it is the type of much else in the same text.
*/
QString withoutNameAndWidth(const Relative& relative, QString text)
{
    text.replace(relative.name, "BOX"_s);
    text.replace(QRegularExpression("\\b%1\\b"_s.arg(relative.type)), relative.isSigned ? "int"_s : "unsigned int"_s);
    text.replace("%1-bit integer"_s.arg(relative.bits), "N-bit integer"_s);
    text.replace("own %1 bits"_s.arg(relative.bits), "own N bits"_s);
    text.replace("pattern of %1 bits"_s.arg(relative.bits), "pattern of N bits"_s);
    text.replace(relative.bits < 32 ? "sum is cut to"_s : "sum wraps in"_s, "sum is held by"_s);
    return text.remove(QRegularExpression("\\s"_s));
}

//! The code of the unsigned class of 32 bits as that of its signed twin would read.
QString asSigned(QString code)
{
    code.replace("CU32SpinBox"_s, "CI32SpinBox"_s);
    code.replace(QRegularExpression("(::isSigned\\(\\)\\s*\\{\\s*return) false;"_s), "\\1 true;"_s);
    return code.replace("unsigned int"_s, "int"_s);
}

QString withoutComments(QString text)
{
    text.remove(QRegularExpression("/\\*.*?\\*/"_s, QRegularExpression::DotMatchesEverythingOption));
    return text.remove(QRegularExpression("//[^\n]*"_s));
}

//! Where two texts part, with what stands around it: two whole files would tell nothing.
QString fromFirstDifference(const QString& text, const QString& other)
{
    int i = 0;
    while (i < text.size() && i < other.size() && text.at(i) == other.at(i))
        ++i;
    return text.mid(qMax(0, i - 40), 120);
}

const Relative& of32Bits(bool isSigned)
{
    for (const Relative& relative : family()) {
        if (relative.bits == 32 && relative.isSigned == isSigned)
            return relative;
    }
    Q_UNREACHABLE();
}

//! The methods of the class itself: kind, return type where there is one, and signature with its parameter names.
QStringList methodsOf(const QMetaObject& metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        const QString kind = method.methodType() == QMetaMethod::Signal ? "signal"_s
                             : method.methodType() == QMetaMethod::Slot ? "slot"_s
                                                                        : "other"_s;
        const QString access = method.access() == QMetaMethod::Public ? "public"_s : "hidden"_s;
        methods << "%1 %2 %3 %4 %5"_s.arg(access, kind, QString::fromLatin1(method.typeName()),
                                          QString::fromLatin1(method.methodSignature()),
                                          QString::fromLatin1(method.parameterNames().join(',')));
    }
    return methods;
}

//! The name that Qt gives \a type in a signature: uchar for unsigned char, and so on.
QString nameInSignatures(const QString& type)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QString::fromLatin1(QMetaType::typeName(QMetaType::type(qPrintable(type))));
#else
    return QString::fromLatin1(QMetaType::fromName(qPrintable(type)).name());
#endif
}

} // namespace

//! Eight classes, one design: what holds them together.
class tst_SpinBoxFamily : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachClassStandsDirectlyOnTheAbstractSpinBox_data() { eachRelative(); }
    void eachClassStandsDirectlyOnTheAbstractSpinBox();
    void eachMetaObjectHasTheSameMethodsAndNothingElse_data() { eachRelative(); }
    void eachMetaObjectHasTheSameMethodsAndNothingElse();
    void eachSignalCanBeConnectedByItsName_data() { eachRelative(); }
    void eachSignalCanBeConnectedByItsName();
    void eachClassKnowsItsSign_data() { eachRelative(); }
    void eachClassKnowsItsSign();
    void eachHeaderDeclaresTheSameInTheSameOrder_data() { eachRelative(); }
    void eachHeaderDeclaresTheSameInTheSameOrder();
    void eachHeaderIsThatOfAPlainQtClass_data() { eachRelative(); }
    void eachHeaderIsThatOfAPlainQtClass();
    void headersOfOneSignednessDifferInNameAndWidthOnly_data() { eachRelative(); }
    void headersOfOneSignednessDifferInNameAndWidthOnly();
    void headersOfBothSignednessesDifferInWordsOnly();
    void sourcesOfOneSignednessDifferInNameAndWidthOnly_data() { eachRelative(); }
    void sourcesOfOneSignednessDifferInNameAndWidthOnly();
    void sourcesOfBothSignednessesDifferInTheSignOnly();
};

void tst_SpinBoxFamily::eachClassStandsDirectlyOnTheAbstractSpinBox()
{
    const Relative& relative = current();
    const QString name = "C%1%2SpinBox"_s.arg(relative.isSigned ? "I"_s : "U"_s).arg(relative.bits);
    QCOMPARE(relative.name, name);
    QCOMPARE(QString::fromLatin1(relative.pMetaObject->className()), "nsUI::"_s + name);
    QCOMPARE(relative.pMetaObject->superClass(), &QAbstractSpinBox::staticMetaObject);
    QCOMPARE(relative.make()->metaObject(), relative.pMetaObject);
}

void tst_SpinBoxFamily::eachMetaObjectHasTheSameMethodsAndNothingElse()
{
    const Relative& relative = current();
    const QMetaObject& metaObject = *relative.pMetaObject;
    const QString type = nameInSignatures(relative.type);
    const QStringList expected = {
        "public signal void valueChanged(%1) nVal"_s.arg(type),
        "public signal void textChanged(QString) sText"_s,
        "public slot void setValue(%1) nVal"_s.arg(type),
        "public slot StepEnabled stepEnabled() "_s,
        "public slot void selectAll() "_s,
    };
    QCOMPARE(methodsOf(metaObject), expected);
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
    QCOMPARE(metaObject.enumeratorCount(), metaObject.enumeratorOffset());
    QCOMPARE(metaObject.classInfoCount(), metaObject.classInfoOffset());
    QCOMPARE(metaObject.constructorCount(), 0);
}

void tst_SpinBoxFamily::eachSignalCanBeConnectedByItsName()
{
    const Relative& relative = current();
    const std::unique_ptr<QAbstractSpinBox> box = relative.make();
    QSignalSpy value(box.get(), qPrintable("2valueChanged(%1)"_s.arg(relative.type)));
    QSignalSpy text(box.get(), SIGNAL(textChanged(QString)));
    QVERIFY(value.isValid());
    QVERIFY(text.isValid());
    box->stepUp();
    QCOMPARE(value.count(), 1);
    QCOMPARE(value.first().first().toInt(), 1);
    QCOMPARE(text.count(), 1);
    QCOMPARE(text.first().first().toString(), "1"_s);
}

void tst_SpinBoxFamily::eachClassKnowsItsSign()
{
    QCOMPARE(current().saysItIsSigned, current().isSigned);
}

void tst_SpinBoxFamily::eachHeaderDeclaresTheSameInTheSameOrder()
{
    const Relative& relative = current();
    const QString header = fileOf(relative, "h"_s);
    int position = 0;
    for (const QString& declaration : {"class TESSERA_EXPORT BOX : public QAbstractSpinBox"_s,
                                       "Q_OBJECT"_s,
                                       "public:"_s,
                                       "explicit BOX(QWidget* parent = nullptr);"_s,
                                       "QValidator::State validate("_s,
                                       "void fixup("_s,
                                       "void stepBy("_s,
                                       "virtual TYPE valueFromText(const QString& sText) const;"_s,
                                       "virtual QString textFromValue(const TYPE& nVal) const;"_s,
                                       "Q_SIGNALS:"_s,
                                       "void valueChanged(const TYPE& nVal);"_s,
                                       "void textChanged(const QString& sText);"_s,
                                       "public Q_SLOTS:"_s,
                                       "void setValue(const TYPE& nVal);"_s,
                                       "StepEnabled stepEnabled() const override;"_s,
                                       "void selectAll();"_s,
                                       "protected:"_s,
                                       "void setLineEdit(QLineEdit* pEdit);"_s,
                                       "private:"_s,
                                       "void editorTextChanged(const QString& sText);"_s,
                                       "void updateEdit();"_s,
                                       "bool specialValue() const;"_s,
                                       "QString stripped("_s,
                                       "TYPE validateAndInterpret("_s,
                                       "static bool isSigned();"_s,
                                       "TYPE m_nValue = 0;"_s,
                                       "TYPE m_nMinimum = 0;"_s,
                                       "TYPE m_nMaximum = 99;"_s,
                                       "TYPE m_nSingleStep = 1;"_s,
                                       "QAbstractSpinBox::StepType m_stepType = QAbstractSpinBox::DefaultStepType;"_s,
                                       "int m_nDisplayIntegerBase = 10;"_s,
                                       "QString m_sPrefix;"_s,
                                       "QString m_sSuffix;"_s,
                                       "QString m_sCachedText;"_s,
                                       "QValidator::State m_cachedState"_s,
                                       "TYPE m_nCachedValue"_s,
                                       "bool m_bCleared = false;"_s}) {
        QString text = declaration;
        text.replace("BOX"_s, relative.name).replace("TYPE"_s, relative.type);
        const int found = static_cast<int>(header.indexOf(text, position));
        QVERIFY2(found >= 0, qPrintable("missing or out of order: "_s + text));
        position = found + static_cast<int>(text.size());
    }
}

void tst_SpinBoxFamily::eachHeaderIsThatOfAPlainQtClass()
{
    const QString header = fileOf(current(), "h"_s);
    QVERIFY(!header.isEmpty());
    QVERIFY(!header.contains("template"_s));
    QVERIFY(!header.contains("_p.h"_s));
    QVERIFY(!header.contains("CCommon"_s));
}

void tst_SpinBoxFamily::headersOfOneSignednessDifferInNameAndWidthOnly()
{
    const Relative& relative = current();
    const Relative& model = of32Bits(relative.isSigned);
    const QString header = withoutNameAndWidth(relative, fileOf(relative, "h"_s));
    const QString expected = withoutNameAndWidth(model, fileOf(model, "h"_s));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(fromFirstDifference(header, expected), fromFirstDifference(expected, header));
}

void tst_SpinBoxFamily::headersOfBothSignednessesDifferInWordsOnly()
{
    const Relative& model = of32Bits(true);
    const Relative& twin = of32Bits(false);
    const QString expected = withoutNameAndWidth(model, withoutComments(fileOf(model, "h"_s)));
    const QString header = withoutNameAndWidth(model, asSigned(withoutComments(fileOf(twin, "h"_s))));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(fromFirstDifference(header, expected), fromFirstDifference(expected, header));
}

void tst_SpinBoxFamily::sourcesOfOneSignednessDifferInNameAndWidthOnly()
{
    const Relative& relative = current();
    const Relative& model = of32Bits(relative.isSigned);
    const QString source = withoutNameAndWidth(relative, fileOf(relative, "cpp"_s));
    const QString expected = withoutNameAndWidth(model, fileOf(model, "cpp"_s));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(fromFirstDifference(source, expected), fromFirstDifference(expected, source));
}

void tst_SpinBoxFamily::sourcesOfBothSignednessesDifferInTheSignOnly()
{
    const Relative& model = of32Bits(true);
    const Relative& twin = of32Bits(false);
    const QString expected = withoutNameAndWidth(model, withoutComments(fileOf(model, "cpp"_s)));
    const QString source = withoutNameAndWidth(model, asSigned(withoutComments(fileOf(twin, "cpp"_s))));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(fromFirstDifference(source, expected), fromFirstDifference(expected, source));
}

TESSERA_TEST_MAIN(tst_SpinBoxFamily)
#include "tst_SpinBoxFamily.moc"
