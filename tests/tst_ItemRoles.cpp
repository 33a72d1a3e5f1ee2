// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/views/ItemRoles.h>

#include <QtTest>

#include <type_traits>

class tst_ItemRoles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNumbersAreFixed_data();
    void theNumbersAreFixed();
    void theTypesAreWideEnoughForWhatModelsAnswer();
};

void tst_ItemRoles::theNumbersAreFixed_data()
{
    QTest::addColumn<quint64>("number");
    QTest::addColumn<quint64>("expected");

    const auto row = [](const char* name, auto number, quint64 expected) {
        QTest::newRow(name) << static_cast<quint64>(number) << expected;
    };
    using namespace nsUI;
    row("kind: plain", e_Item_Plain, 0);
    row("kind: check box", e_Item_CheckBox, 1);
    row("kind: bool as text", e_Item_BoolText, 2);
    row("kind: bool as picture", e_Item_BoolPicture, 3);
    row("kind: combo box", e_Item_ComboBox, 4);
    row("kind: data combo box", e_Item_DataComboBox, 5);
    row("kind: integer", e_Item_ISpinBox, 6);
    row("kind: double", e_Item_DSpinBox, 7);
    row("kind: line edit", e_Item_LineEdit, 8);
    row("kind: colour", e_Item_Color, 9);
    row("kind: font", e_Item_Font, 10);
    row("kind: pen", e_Item_Pen, 11);
    row("kind: byte array", e_Item_ByteArray, 12);
    row("role: kind", e_Role_ItemType, 256);
    row("role: mark of a bit", e_Role_BoolMark, 257);
    row("role: pictures", e_Role_Pictures, 258);
    row("role: pictures, disabled", e_Role_DisabledPictures, 259);
    row("role: texts", e_Role_Texts, 260);
    row("role: texts of data", e_Role_DataTexts, 261);
    row("role: data", e_Role_Data, 262);
    row("role: integer type", e_Role_ISpxType, 263);
    row("role: integer minimum", e_Role_ISpxMinimum, 264);
    row("role: integer maximum", e_Role_ISpxMaximum, 265);
    row("role: integer prefix", e_Role_ISpxPrefix, 266);
    row("role: integer suffix", e_Role_ISpxSuffix, 267);
    row("role: integer base", e_Role_ISpxBase, 268);
    row("role: double minimum", e_Role_DSpxMinimum, 269);
    row("role: double maximum", e_Role_DSpxMaximum, 270);
    row("role: double decimals", e_Role_DSpxDecimals, 271);
    row("role: double format", e_Role_DSpxFormat, 272);
    row("role: double step", e_Role_DSpxStep, 273);
    row("role: double options", e_Role_DSpxOptions, 274);
    row("role: pattern", e_Role_Pattern, 275);
    row("role: bit descriptions", e_Role_BitDescriptions, 276);
    row("option: write at once", e_DSpx_WriteAtOnce, 1);
    row("option: follow the step", e_DSpx_FollowStep, 2);
}

void tst_ItemRoles::theNumbersAreFixed()
{
    QFETCH(quint64, number);
    QTEST(number, "expected");
}

void tst_ItemRoles::theTypesAreWideEnoughForWhatModelsAnswer()
{
    QVERIFY((std::is_same_v<std::underlying_type_t<nsUI::e_ItemType>, int>));
    QVERIFY((std::is_same_v<std::underlying_type_t<nsUI::e_ItemRole>, int>));
    QVERIFY((std::is_same_v<std::underlying_type_t<nsUI::e_DSpxOption>, quint64>));
}

TESSERA_TEST_GUILESS_MAIN(tst_ItemRoles)
#include "tst_ItemRoles.moc"
