// SPDX-License-Identifier: MIT
//
// The item views beside Qt's own, and the bit dialog by the size of what it edits.
//
//   bench_views [--benchmark_filter=REGEX]     on the offscreen platform unless QT_QPA_PLATFORM says otherwise
//
// A number behind a name is the kind of the cells (e_ItemType), or a number of bytes. "By hand" is the floor: the same
// done with nothing but what has to be done.

#include <Tessera/CISpinBox/CI32SpinBox.h>
#include <Tessera/Tessera.h>
#include <Tessera/views/CBitDialog.h>
#include <Tessera/views/CBitModel.h>
#include <Tessera/views/ItemRoles.h>
#include <Tessera/views/StyledItemDelegate.h>
#include <Tessera/views/TbModel.h>
#include <Tessera/views/TbView.h>
#include <Tessera/widgets/CDataComboBox.h>
#include <Tessera/widgets/CDSpinBox.h>
#include <Tessera/widgets/CPenDialog.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFont>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPen>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QSvgRenderer>
#include <QTableView>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

using namespace nsUI;

namespace {

constexpr int c_nRows = 40;
constexpr int c_nColumns = 10;

QStringList& pictures()
{
    static QStringList paths;
    return paths;
}

QVariant valueOf(int nKind)
{
    switch (nKind) {
    case e_Item_CheckBox:
    case e_Item_BoolText:
    case e_Item_BoolPicture:
        return true;
    case e_Item_ComboBox:
        return 1;
    case e_Item_DataComboBox:
        return 20;
    case e_Item_ISpinBox:
        return 1234;
    case e_Item_DSpinBox:
        return 12.5;
    case e_Item_Color:
        return QColor(Qt::yellow);
    case e_Item_Font:
        return QApplication::font();
    case e_Item_Pen:
        return QPen(Qt::red, 2.5);
    case e_Item_ByteArray:
        return QByteArray("\x12\xAB\x34\xCD");
    default:
        return QStringLiteral("some text");
    }
}

QHash<int, QVariant> settingsOf(int nKind)
{
    const QStringList texts{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
    switch (nKind) {
    case e_Item_BoolPicture:
        return {{e_Role_Pictures, pictures()}};
    case e_Item_ComboBox:
        return {{e_Role_Texts, texts}};
    case e_Item_DataComboBox:
        return {{e_Role_DataTexts, texts}, {e_Role_Data, QVariantList{10, 20, 30}}};
    case e_Item_ISpinBox:
        return {{e_Role_ISpxType, int(e_ISpx_I32)}, {e_Role_ISpxMinimum, 0}, {e_Role_ISpxMaximum, 0xFFFF}};
    case e_Item_DSpinBox:
        return {{e_Role_DSpxMinimum, 0.0}, {e_Role_DSpxMaximum, 1000.0}};
    case e_Item_LineEdit:
        return {{e_Role_Pattern, QStringLiteral("[a-z ]{0,12}")}};
    default:
        return {};
    }
}

//! Cells of one kind, each with the same value.
class KindModel : public TbModel
{
public:
    explicit KindModel(int nKind)
        : m_nKind(nKind)
        , m_value(valueOf(nKind))
        , m_settings(settingsOf(nKind))
    {
    }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override { return parent.isValid() ? 0 : c_nRows; }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : c_nColumns;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::EditRole)
            return m_value;
        if (role == e_Role_ItemType)
            return m_nKind;
        if (role > e_Role_ItemType)
            return m_settings.value(role);
        return TbModel::data(index, role);
    }
    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (role != Qt::EditRole)
            return TbModel::setData(index, value, role);
        m_value = value;
        return true;
    }

private:
    int m_nKind;
    QVariant m_value;
    QHash<int, QVariant> m_settings;
};

//! The same cells in a model that a host would write without the library: what is shown is worked out beforehand.
class PlainModel : public QAbstractTableModel
{
public:
    explicit PlainModel(int nKind)
        : m_value(valueOf(nKind))
    {
        const KindModel model(nKind);
        const QModelIndex index = model.index(0, 0);
        m_text = index.data(Qt::DisplayRole);
        m_background = index.data(Qt::BackgroundRole);
        m_checkState = index.data(Qt::CheckStateRole);
        m_flags = model.flags(index);
    }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override { return parent.isValid() ? 0 : c_nRows; }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : c_nColumns;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid())
            return {};
        switch (role) {
        case Qt::DisplayRole:
            return m_text;
        case Qt::EditRole:
            return m_value;
        case Qt::BackgroundRole:
            return m_background;
        case Qt::CheckStateRole:
            return m_checkState;
        default:
            return {};
        }
    }
    bool setData(const QModelIndex&, const QVariant& value, int role) override
    {
        if (role != Qt::EditRole)
            return false;
        m_value = value;
        return true;
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override { return index.isValid() ? m_flags : Qt::ItemFlags(); }

private:
    QVariant m_text;
    QVariant m_value;
    QVariant m_background;
    QVariant m_checkState;
    Qt::ItemFlags m_flags;
};

//! A model that asks itself for kind and value, as TbModel must, and does nothing else.
class AskingModel : public QAbstractTableModel
{
public:
    explicit AskingModel(int nKind)
        : m_nKind(nKind)
        , m_value(valueOf(nKind))
    {
    }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override { return parent.isValid() ? 0 : c_nRows; }
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : c_nColumns;
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::EditRole)
            return m_value;
        if (role == e_Role_ItemType)
            return m_nKind;
        const QAbstractItemModel* pModel = this;
        benchmark::DoNotOptimize(pModel); // a host's subclass can be any
        if (role == Qt::DisplayRole && pModel->data(index, e_Role_ItemType).toInt() == m_nKind)
            return pModel->data(index, Qt::EditRole);
        return {};
    }

private:
    int m_nKind;
    QVariant m_value;
};

// data()

//! A model of which the compiler does not know the class, as in a view.
template <class Model>
std::unique_ptr<QAbstractItemModel> hiddenModel(int nKind)
{
    QAbstractItemModel* pModel = new Model(nKind);
    benchmark::DoNotOptimize(pModel);
    return std::unique_ptr<QAbstractItemModel>(pModel);
}

template <class Model>
void displayText(benchmark::State& state)
{
    const auto pModel = hiddenModel<Model>(static_cast<int>(state.range(0)));
    const QModelIndex index = pModel->index(3, 3);
    for (auto _ : state)
        benchmark::DoNotOptimize(pModel->data(index, Qt::DisplayRole));
}

//! What a kind's text is made of, with the value at hand.
QString textByHand(const QAbstractItemModel* pModel, const QModelIndex& index, int nKind, const QVariant& tValue)
{
    const auto texts = [pModel, &index](int nRole) { return pModel->data(index, nRole).toStringList(); };
    switch (nKind) {
    case e_Item_BoolText:
        return QCoreApplication::translate("Translator", tValue.toBool() ? "True" : "False");
    case e_Item_ComboBox:
        return texts(e_Role_Texts).value(tValue.toInt());
    case e_Item_DataComboBox:
        return texts(e_Role_DataTexts).value(pModel->data(index, e_Role_Data).toList().indexOf(tValue));
    case e_Item_Pen: {
        const auto pen = tValue.value<QPen>();
        return QStringLiteral("%1;%2;%3")
            .arg(pen.color().name(), QString::number(pen.widthF()), CPenDialog::getPenStyleDesc(pen.style()));
    }
    default:
        return QLatin1String("0x") + QString::fromLatin1(tValue.toByteArray().toHex().toUpper());
    }
}

void formattedText(benchmark::State& state)
{
    const int nKind = static_cast<int>(state.range(0));
    const auto pModel = hiddenModel<KindModel>(nKind);
    const QModelIndex index = pModel->index(3, 3);
    const QVariant tValue = valueOf(nKind);
    for (auto _ : state)
        benchmark::DoNotOptimize(textByHand(pModel.get(), index, nKind, tValue));
}

//! All that a view asks a model for to paint a cell.
template <class Model>
void paintRoles(benchmark::State& state)
{
    const auto pModel = hiddenModel<Model>(static_cast<int>(state.range(0)));
    const QModelIndex index = pModel->index(3, 3);
    for (auto _ : state) {
        for (const int nRole : {Qt::FontRole, Qt::TextAlignmentRole, Qt::ForegroundRole, Qt::CheckStateRole,
                                Qt::DecorationRole, Qt::DisplayRole, Qt::BackgroundRole})
            benchmark::DoNotOptimize(pModel->data(index, nRole));
        benchmark::DoNotOptimize(pModel->flags(index));
    }
}

// An editor opened, loaded and committed

template <class Model, class Delegate>
void editorRound(benchmark::State& state)
{
    Model model(static_cast<int>(state.range(0)));
    const Delegate delegate;
    QWidget parent;
    const QStyleOptionViewItem option;
    const QModelIndex index = model.index(3, 3);
    for (auto _ : state) {
        const std::unique_ptr<QWidget> pEditor(delegate.createEditor(&parent, option, index));
        delegate.setEditorData(pEditor.get(), index);
        delegate.setModelData(pEditor.get(), &model, index);
    }
}

//! The editor of a kind, set up, without delegate, tool tip and model.
std::unique_ptr<QWidget> editorByHand(int nKind, QWidget* pParent)
{
    switch (nKind) {
    case e_Item_ComboBox: {
        auto pBox = std::make_unique<QComboBox>(pParent);
        pBox->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
        pBox->setCurrentIndex(1);
        return pBox;
    }
    case e_Item_DataComboBox: {
        auto pBox = std::make_unique<CDataComboBox>(pParent);
        pBox->addItem(QStringLiteral("one"), 10);
        pBox->addItem(QStringLiteral("two"), 20);
        pBox->addItem(QStringLiteral("three"), 30);
        pBox->setCurrentData(20, Qt::UserRole);
        return pBox;
    }
    case e_Item_ISpinBox: {
        auto pBox = std::make_unique<CI32SpinBox>(pParent);
        pBox->setRange(0, 0xFFFF);
        pBox->setValue(1234);
        pBox->selectAll();
        return pBox;
    }
    case e_Item_DSpinBox: {
        auto pBox = std::make_unique<CDSpinBox>(pParent);
        pBox->setRange(0.0, 1000.0);
        pBox->setValue(12.5);
        pBox->selectAll();
        return pBox;
    }
    default: {
        auto pEdit = std::make_unique<QLineEdit>(pParent);
        pEdit->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[a-z ]{0,12}")), pEdit.get()));
        pEdit->setText(QStringLiteral("some text"));
        pEdit->selectAll();
        return pEdit;
    }
    }
}

void bareEditor(benchmark::State& state)
{
    QWidget parent;
    for (auto _ : state)
        benchmark::DoNotOptimize(editorByHand(static_cast<int>(state.range(0)), &parent));
}

// A full repaint

template <class View, class Model, class Delegate>
void repaint(benchmark::State& state)
{
    Model model(static_cast<int>(state.range(0)));
    View view;
    view.setModel(&model);
    view.setItemDelegate(new Delegate(&view));
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setFocusPolicy(Qt::NoFocus);
    view.resize(1100, 900);
    view.show();
    QApplication::processEvents();
    for (auto _ : state)
        view.viewport()->repaint();
}

//! The floor of picture cells: the file read and drawn, nothing else.
class PictureDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        QSvgRenderer(pictures().first()).render(painter, QRectF(option.rect));
    }
};

// The grid of bits

void bitCell(benchmark::State& state)
{
    CBitModel model;
    model.setByteArray(QByteArray(static_cast<int>(state.range(0)), '\x55'));
    const QModelIndex position = model.index(9, 3);
    const QModelIndex value = model.index(9, 4);
    const QModelIndex description = model.index(9, 5);
    for (auto _ : state) {
        for (const QModelIndex& index : {position, value, description}) {
            for (const int nRole : {Qt::DisplayRole, Qt::TextAlignmentRole, Qt::BackgroundRole, Qt::FontRole})
                benchmark::DoNotOptimize(model.data(index, nRole));
            benchmark::DoNotOptimize(model.flags(index));
        }
    }
}

void bitFlip(benchmark::State& state)
{
    CBitModel model;
    model.setByteArray(QByteArray(static_cast<int>(state.range(0)), '\x55'));
    const QModelIndex value = model.index(9, 4);
    bool isSet = false;
    for (auto _ : state) {
        isSet = !isSet;
        model.setData(value, isSet, Qt::EditRole);
    }
}

//! Lets everything happen that was asked for, up to the last repaint.
void settle()
{
    do {
        QApplication::processEvents();
    } while (QAbstractEventDispatcher::instance()->hasPendingEvents());
}

template <class View>
void openGrid(benchmark::State& state)
{
    CBitModel model;
    model.setByteArray(QByteArray(static_cast<int>(state.range(0)), '\x55'));
    for (auto _ : state) {
        View view;
        view.setModel(&model);
        view.resize(900, 600);
        view.show();
        settle();
    }
}

template <class View>
void scrollGrid(benchmark::State& state)
{
    CBitModel model;
    model.setByteArray(QByteArray(static_cast<int>(state.range(0)), '\x55'));
    View view;
    view.setModel(&model);
    view.resize(900, 600);
    view.show();
    settle();
    QScrollBar* const pBar = view.verticalScrollBar();
    const int nPage = pBar->pageStep();
    for (auto _ : state) {
        pBar->setValue(pBar->value() > pBar->maximum() - nPage ? 0 : pBar->value() + nPage);
        settle();
    }
}

template <class View>
void flipInGrid(benchmark::State& state)
{
    CBitModel model;
    model.setByteArray(QByteArray(static_cast<int>(state.range(0)), '\x55'));
    View view;
    view.setModel(&model);
    view.resize(900, 600);
    view.show();
    settle();
    const QModelIndex index = model.index(3, 1);
    for (auto _ : state) {
        model.setData(index, !index.data(Qt::EditRole).toBool(), Qt::EditRole);
        settle();
    }
}

// The bit dialog, shown, until everything has been painted again

std::unique_ptr<CBitDialog> shownDialog(int nBytes)
{
    auto pDialog = std::make_unique<CBitDialog>(QByteArray(nBytes, '\x55'), QMap<int, QString>());
    pDialog->resize(900, 600);
    pDialog->show();
    settle();
    return pDialog;
}

void openedDialog(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(shownDialog(static_cast<int>(state.range(0))));
}

void typedDigit(benchmark::State& state, int nRow, int nKey)
{
    const auto pDialog = shownDialog(static_cast<int>(state.range(0)));
    auto* const pForm = pDialog->findChild<QFormLayout*>();
    auto* const pEdit = static_cast<QLineEdit*>(pForm->itemAt(nRow, QFormLayout::FieldRole)->widget());
    bool isFirst = false;
    for (auto _ : state) {
        isFirst = !isFirst;
        pEdit->setCursorPosition(0);
        const int nDigit = isFirst ? nKey : nKey - 1;
        QKeyEvent event(QEvent::KeyPress, nDigit, Qt::NoModifier, QString(QChar(nDigit)));
        QApplication::sendEvent(pEdit, &event);
        settle();
    }
}

void typedHexDigit(benchmark::State& state)
{
    typedDigit(state, 0, Qt::Key_7);
}

void typedBinDigit(benchmark::State& state)
{
    typedDigit(state, 1, Qt::Key_1);
}

void flippedBit(benchmark::State& state)
{
    const auto pDialog = shownDialog(static_cast<int>(state.range(0)));
    QAbstractItemModel* const pModel = pDialog->findChild<TbView*>()->model();
    const QModelIndex index = pModel->index(3, 1);
    for (auto _ : state) {
        pModel->setData(index, !index.data(Qt::EditRole).toBool(), Qt::EditRole);
        settle();
    }
}

//! The two texts alone, set anew in line edits with the same masks.
void bareTexts(benchmark::State& state)
{
    const int nBytes = static_cast<int>(state.range(0));
    QWidget window;
    QLineEdit hex(&window);
    QLineEdit bin(&window);
    hex.setInputMask(QLatin1Char('>') + QStringLiteral(" HH").repeated(nBytes).mid(1));
    bin.setInputMask(QStringLiteral(" BBBBBBBB").repeated(nBytes).mid(1));
    hex.setGeometry(0, 0, 850, 24);
    bin.setGeometry(0, 30, 850, 24);
    window.resize(900, 600);
    window.show();
    settle();
    const QString aHex[] = {QStringLiteral(" 55").repeated(nBytes).mid(1),
                            QStringLiteral(" 5D").repeated(nBytes).mid(1)};
    const QString aBin[] = {QStringLiteral(" 01010101").repeated(nBytes).mid(1),
                            QStringLiteral(" 01011101").repeated(nBytes).mid(1)};
    bool isFirst = false;
    for (auto _ : state) {
        isFirst = !isFirst;
        hex.setText(aHex[isFirst ? 0 : 1]);
        bin.setText(aBin[isFirst ? 0 : 1]);
        settle();
    }
}

} // namespace

BENCHMARK_TEMPLATE(displayText, KindModel)->Name("text/TbModel")->DenseRange(0, 12);
BENCHMARK_TEMPLATE(displayText, PlainModel)->Name("text/QAbstractTableModel")->DenseRange(0, 12);
BENCHMARK_TEMPLATE(displayText, AskingModel)->Name("text/kind and value by hand")->Arg(0)->Arg(6);
BENCHMARK(formattedText)->Name("text/formatted by hand")->Arg(2)->Arg(4)->Arg(5)->Arg(11)->Arg(12);
BENCHMARK_TEMPLATE(paintRoles, KindModel)->Name("paint roles/TbModel")->DenseRange(0, 12);
BENCHMARK_TEMPLATE(paintRoles, PlainModel)->Name("paint roles/QAbstractTableModel")->DenseRange(0, 12);

BENCHMARK_TEMPLATE(editorRound, KindModel, StyledItemDelegate)->Name("editor/StyledItemDelegate")->DenseRange(4, 8);
BENCHMARK_TEMPLATE(editorRound, PlainModel, QStyledItemDelegate)->Name("editor/QStyledItemDelegate")->DenseRange(4, 8);
BENCHMARK(bareEditor)->Name("editor/by hand")->DenseRange(4, 8);

BENCHMARK_TEMPLATE(repaint, TbView, KindModel, StyledItemDelegate)
    ->Name("repaint/TbView")
    ->DenseRange(0, 12)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(repaint, QTableView, PlainModel, QStyledItemDelegate)
    ->Name("repaint/QTableView")
    ->DenseRange(0, 12)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(repaint, QTableView, PlainModel, PictureDelegate)
    ->Name("repaint/QTableView with pictures")
    ->Arg(3)
    ->Unit(benchmark::kMillisecond);

BENCHMARK(bitCell)->Name("bits/cell")->Arg(8)->Arg(1 << 20);
BENCHMARK(bitFlip)->Name("bits/flip")->Arg(8)->Arg(1 << 20);

#define GRID_SIZES Arg(1 << 10)->Arg(1 << 20)->Unit(benchmark::kMillisecond)
BENCHMARK_TEMPLATE(openGrid, TbView)->Name("grid/open/TbView")->GRID_SIZES;
BENCHMARK_TEMPLATE(openGrid, QTableView)->Name("grid/open/QTableView")->GRID_SIZES;
BENCHMARK_TEMPLATE(scrollGrid, TbView)->Name("grid/page/TbView")->GRID_SIZES;
BENCHMARK_TEMPLATE(scrollGrid, QTableView)->Name("grid/page/QTableView")->GRID_SIZES;
BENCHMARK_TEMPLATE(flipInGrid, TbView)->Name("grid/flip/TbView")->GRID_SIZES;
BENCHMARK_TEMPLATE(flipInGrid, QTableView)->Name("grid/flip/QTableView")->GRID_SIZES;

#define DIALOG_SIZES Arg(16)->Arg(1 << 10)->Arg(1 << 13)->Arg(1 << 16)->Unit(benchmark::kMillisecond)
BENCHMARK(openedDialog)->Name("dialog/open")->DIALOG_SIZES;
BENCHMARK(typedHexDigit)->Name("dialog/hex digit")->DIALOG_SIZES;
BENCHMARK(typedBinDigit)->Name("dialog/bin digit")->DIALOG_SIZES;
BENCHMARK(flippedBit)->Name("dialog/flip")->DIALOG_SIZES;
BENCHMARK(bareTexts)->Name("dialog/two QLineEdits")->DIALOG_SIZES;

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0); // no cursor blinks into what is measured

    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("picture.svg")));
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    file.write("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 24 24\">"
               "<circle cx=\"12\" cy=\"12\" r=\"10\" fill=\"#136796\"/></svg>\n");
    file.close();
    pictures() << file.fileName() << file.fileName();

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
