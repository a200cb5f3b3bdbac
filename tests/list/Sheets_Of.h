#pragma once

#include "list/Archive_Of.h"

// Spreadsheets as tests write them: three sheets, of which the first is hidden and the second is read.

inline constexpr char Workbook[] =
    "<workbook xmlns:r='x'><sheets><sheet name='Spare' state='hidden' r:id='a'/>"
    "<sheet name='People' r:id='b'/><sheet name='June &amp; July' r:id='c'/></sheets></workbook>";
inline constexpr char Relations[] = "<Relationships><Relationship Id='a' Type='x/worksheet' Target='sheets/1.xml'/>"
                                    "<Relationship Id='b' Type='x/worksheet' Target='/xl/sheets/2.xml'/>"
                                    "<Relationship Id='c' Type='x/worksheet' Target='../xl/sheets/3.xml'/>"
                                    "<Relationship Id='s' Type='x/sharedStrings' Target='texts.xml'/>"
                                    "<Relationship Id='f' Type='x/styles' Target='styles.xml'/></Relationships>";
inline constexpr char Texts[] =
    "<sst><si><t>Name</t></si><si><t>Phone</t></si><si><r><t>A</t></r><r><rPr/><t>nn</t></r>"
    "<rPh sb='0' eb='1'><t>no</t></rPh></si><si><t xml:space='preserve"
    "'> B&#246;b &lt;&#x1F600;&gt;</t></si></sst>";
inline constexpr char Styles[] =
    "<styleSheet><numFmts><numFmt numFmtId='200' formatCode='00000000000'/></numFmts>"
    "<cellStyleXfs><xf numFmtId='14'/></cellStyleXfs>"
    "<cellXfs><xf numFmtId='0'/><xf numFmtId='200'/><xf numFmtId='14'/></cellXfs></styleSheet>";

inline QByteArray Xlsx(const QByteArray& rows, const QByteArray& texts = Texts, const QByteArray& workbook = Workbook)
{
    return Archive_Of(
        {{"[Content_Types].xml", "<Types/>"},
         {"xl/workbook.xml", workbook},
         {"xl/_rels/workbook.xml.rels", Relations},
         {"xl/texts.xml", texts},
         {"xl/styles.xml", Styles},
         {"xl/sheets/1.xml", "<worksheet><sheetData><row><c t='str'><v>Hidden</v></c></row></sheetData></worksheet>"},
         {"xl/sheets/2.xml",
          "<?xml version='1.0' encoding='UTF-8'?>\n<worksheet><sheetData>" + rows + "</sheetData></worksheet>"},
         {"xl/sheets/3.xml",
          "<x:worksheet xmlns:x='y'><x:sheetData><x:row><x:c t='inlineStr'><x:is><x:t>Tel</x:t></x:is>"
          "</x:c></x:row><x:row><x:c><x:v>1</x:v></x:c></x:row></x:sheetData></x:worksheet>"}});
}

inline QByteArray Ods(const QByteArray& rows, const QByteArray& before = {})
{
    return Archive_Of(
        {{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"},
         {"content.xml", "<office:document-content><office:automatic-styles><style:style style:name='h'>"
                         "<style:table-properties table:display='false'/></style:style></office:automatic-styles>"
                         "<office:body><office:spreadsheet>" +
                             before + "<table:table table:name='People'>" + rows +
                             "</table:table></office:spreadsheet></office:body></office:document-content>"}});
}

inline QByteArray Row(const QByteArray& cells)
{
    return "<table:table-row>" + cells + "</table:table-row>";
}

inline QByteArray Text(const QByteArray& text, const QByteArray& attributes = {})
{
    return "<table:table-cell office:value-type='string' " + attributes + "><text:p>" + text +
           "</text:p></table:table-cell>";
}

inline const QByteArray Header = "<row r='1'><c r='A1' t='s'><v>0</v></c><c r='B1' t='s'><v>1</v></c></row>";
inline const QByteArray Ods_Header = Row(Text("Name") + Text("Phone"));
