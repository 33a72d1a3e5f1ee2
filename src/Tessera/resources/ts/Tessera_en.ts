<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>FontSettingDlg</name>
    <message>
        <source>Font Settings</source>
        <translation>Font Settings</translation>
    </message>
    <message>
        <source>Font Size:</source>
        <translation>Font Size:</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Example</translation>
    </message>
</context>
<context>
    <name>Translator</name>
    <message>
        <source>True</source>
        <translation>True</translation>
    </message>
    <message>
        <source>False</source>
        <translation>False</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>Undefined</translation>
    </message>
</context>
<context>
    <name>nsUI::CBitDialog</name>
    <message>
        <source>Bit Settings</source>
        <translation>Bit Settings</translation>
    </message>
    <message>
        <source>HEX:</source>
        <translation>HEX:</translation>
    </message>
    <message>
        <source>BIN:</source>
        <translation>BIN:</translation>
    </message>
</context>
<context>
    <name>nsUI::CBitModel</name>
    <message>
        <source>Bit Position</source>
        <translation>Bit Position</translation>
    </message>
    <message>
        <source>Bit Value</source>
        <translation>Bit Value</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
</context>
<context>
    <name>nsUI::CPenDialog</name>
    <message>
        <source>Pen Settings</source>
        <translation>Pen Settings</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>Line Width:</source>
        <translation>Line Width:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>Style:</translation>
    </message>
    <message>
        <source>NoPen</source>
        <translation>NoPen</translation>
    </message>
    <message>
        <source>SolidLine</source>
        <translation>SolidLine</translation>
    </message>
    <message>
        <source>DashLine</source>
        <translation>DashLine</translation>
    </message>
    <message>
        <source>DotLine</source>
        <translation>DotLine</translation>
    </message>
    <message>
        <source>DashDotLine</source>
        <translation>DashDotLine</translation>
    </message>
    <message>
        <source>DashDotDotLine</source>
        <translation>DashDotDotLine</translation>
    </message>
    <message>
        <source>Undefine</source>
        <translation>Undefine</translation>
    </message>
</context>
<context>
    <name>nsUI::CustomTextBrowser</name>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
</context>
<context>
    <name>nsUI::FontSettingDlg</name>
    <message>
        <source>Example Text</source>
        <translation>Example Text</translation>
    </message>
</context>
</TS>
