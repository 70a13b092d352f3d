# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes workbooks as other programs, and bad minds, make them.

make_workbook.py KIND FILE
"""
import datetime
import sys
import zipfile

import openpyxl
from openpyxl.chart import BarChart, Reference
from openpyxl.comments import Comment
from openpyxl.formatting.rule import CellIsRule
from openpyxl.styles import Border, Font, PatternFill, Side
from openpyxl.workbook.defined_name import DefinedName

MAIN = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
TYPES = "http://schemas.openxmlformats.org/package/2006/content-types"
PACKAGE = "http://schemas.openxmlformats.org/package/2006/relationships"
OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
STRICT = "http://purl.oclc.org/ooxml/officeDocument/relationships"
SHEET = "application/vnd.openxmlformats-officedocument.spreadsheetml."


def rewrite(path, change):
    """Lets change() see and replace each part; what it adds under new names joins them."""
    with zipfile.ZipFile(path) as package:
        parts = {info.filename: package.read(info) for info in package.infolist()}
    change(parts)
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
        for name, content in parts.items():
            package.writestr(name, content)


def full(path):
    """Nearly all that a workbook can hold, extensions of other programs among it."""
    book = openpyxl.Workbook()
    data = book.active
    data.title = "Población"
    for row in range(1, 6):
        data.append([f"area {row}", row * 10, row / 3, f"=B{row}*2"])
    data["A1"].font = Font(name="Arial", bold=True, color="FF0000")
    data["B1"].fill = PatternFill("solid", fgColor="FFFF00")
    data["C1"].number_format = "0.000%"
    data["B2"].border = Border(left=Side(style="double"))
    data["A2"].comment = Comment("a note", "somebody")
    data["E1"] = datetime.date(2020, 2, 29)
    data.conditional_formatting.add("B1:B5", CellIsRule(operator="greaterThan", formula=["20"],
                                                        fill=PatternFill(bgColor="00FF00")))
    chart = BarChart()
    chart.add_data(Reference(data, min_col=2, min_row=1, max_row=5))
    data.add_chart(chart, "G2")
    book.create_sheet("FREQ_1")["A1"] = "taken"
    book.create_sheet("x'y & <z>")["A1"] = "odd name"
    book.defined_names.append(DefinedName("areas", attr_text="'Población'!$A$1:$A$5"))
    book.save(path)

    def extend(parts):
        parts["customXml/item1.xml"] = b'<own xmlns="urn:somebody">kept</own>'
        parts["xl/media/image1.png"] = b"\x89PNG\r\n\x1a\n not for the eye"
        parts["xl/vbaProject.bin"] = bytes(range(256)) * 40
        types = parts["[Content_Types].xml"].decode()
        parts["[Content_Types].xml"] = types.replace(
            "</Types>", '<Default Extension="png" ContentType="image/png"/>'
            '<Default Extension="bin" ContentType="application/vnd.ms-office.vbaProject"/>'
            "</Types>").encode()
        book = parts["xl/workbook.xml"].decode()
        parts["xl/workbook.xml"] = book.replace(
            "</workbook>", '<extLst><ext uri="{1}" xmlns:own="urn:somebody"><own:thing a="1"/>'
            "</ext></extLst></workbook>").encode()
    rewrite(path, extend)


def parts_of(book, relation=OFFICE + "/officeDocument", more=None):
    parts = {
        "[Content_Types].xml": f'<?xml version="1.0"?>\n<c:Types xmlns:c="{TYPES}">'
        '<c:Default Extension="rels" '
        'ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
        f'<c:Override PartName="/book/workbook.xml" ContentType="{SHEET}sheet.main+xml"/>'
        f'<c:Override PartName="/book/one.xml" ContentType="{SHEET}worksheet+xml"/></c:Types>',
        "_rels/.rels": f'<Relationships xmlns="{PACKAGE}"><Relationship Id="R1" '
        f'Type="{relation}" Target="/book/workbook.xml"/></Relationships>',
        "book/_rels/workbook.xml.rels": f'<Relationships xmlns="{PACKAGE}"><Relationship '
        f'Id="rId7" Type="{OFFICE}/worksheet" Target="one.xml"/></Relationships>',
        "book/workbook.xml": book,
        "book/one.xml": f'<x:worksheet xmlns:x="{MAIN}"><x:sheetData><x:row r="1"><x:c r="A1">'
        "<x:v>4</x:v></x:c></x:row></x:sheetData></x:worksheet>",
    }
    parts.update(more or {})
    return parts


def write_parts(path, parts):
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
        for name, content in parts.items():
            package.writestr(name, content)


def bare_book(space=MAIN, head=""):
    return (f'<?xml version="1.0" encoding="UTF-8"?>\r\n{head}<x:workbook xmlns:x="{space}">'
            f'<!-- </x:sheets> --><x:sheets>\r\n<x:sheet xmlns:q="{OFFICE}" name="One" '
            'sheetId="9" q:id="rId7"/>\r\n</x:sheets></x:workbook>')


def bare(path):
    """The least that a workbook needs, in other folders, with other prefixes and no formats."""
    write_parts(path, parts_of(bare_book()))


def prefixed(path):
    """Formats under a prefix of their own, lists missing, in UTF-16."""
    styles = (f'<x:styleSheet xmlns:x="{MAIN}"><x:fonts count="1"><x:font><x:name val="Arial"/>'
              "</x:font></x:fonts></x:styleSheet>").encode("utf-16")
    parts = parts_of(bare_book(), more={"book/own.xml": styles})
    parts["book/_rels/workbook.xml.rels"] = parts["book/_rels/workbook.xml.rels"].replace(
        "</Relationships>",
        f'<Relationship Id="rId1" Type="{OFFICE}/styles" Target="own.xml"/></Relationships>')
    parts["[Content_Types].xml"] = parts["[Content_Types].xml"].replace(
        "</c:Types>", f'<c:Override PartName="/book/own.xml" ContentType="{SHEET}styles+xml"/>'
        "</c:Types>")
    write_parts(path, parts)


def strict(path):
    write_parts(path, parts_of(bare_book("http://purl.oclc.org/ooxml/spreadsheetml/main"),
                               STRICT + "/officeDocument"))


def signed(path):
    parts = parts_of(bare_book())
    parts["_rels/.rels"] = parts["_rels/.rels"].replace(
        "</Relationships>", f'<Relationship Id="R2" Type="{PACKAGE}/digital-signature/origin" '
        'Target="_xmlsignatures/origin.sigs"/></Relationships>')
    write_parts(path, parts)


def entities(path):
    head = '<!DOCTYPE w [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;">]>'
    write_parts(path, parts_of(bare_book(head=head)))


def bomb(path):
    prefixed(path)
    with zipfile.ZipFile(path) as package:
        parts = {info.filename: package.read(info) for info in package.infolist()}
    parts["book/own.xml"] = b"<styleSheet>" + b" " * (100 << 20) + b"</styleSheet>"
    write_parts(path, parts)


def attributes(path):
    """A tag whose attributes take for ever to compare."""
    many = "".join(f' a{i}=""' for i in range(1_000_000))
    write_parts(path, parts_of(bare_book().replace("<x:sheets", f"<x:sheets{many}", 1)
                               .replace("<!-- </x:sheets> -->", "")))


def elements(path):
    write_parts(path, parts_of(bare_book().replace("</x:workbook>",
                                                   "<a/>" * 3_000_000 + "</x:workbook>")))


def nested(path):
    write_parts(path, parts_of(bare_book().replace(
        "</x:workbook>", "<a>" * 1_000_000 + "</a>" * 1_000_000 + "</x:workbook>")))


def missing(path):
    parts = parts_of(bare_book())
    del parts["book/workbook.xml"]
    write_parts(path, parts)


def broken(path):
    write_parts(path, parts_of(bare_book().replace("</x:sheets>", "")))


def text_document(path):
    write_parts(path, parts_of('<document xmlns="urn:text"/>'))


def cut_off(path):
    full(path)
    with open(path, "rb") as file:
        content = file.read()
    with open(path, "wb") as file:
        file.write(content[:len(content) // 2])


def damaged(path):
    """A part whose bytes changed on the way: the checksum tells."""
    content = bytearray()
    with zipfile.ZipFile(path, "w", zipfile.ZIP_STORED) as package:
        for name, text in parts_of(bare_book()).items():
            package.writestr(name, text)
    with open(path, "rb") as file:
        content = file.read().replace(b'name="One"', b'name="Two"')
    with open(path, "wb") as file:
        file.write(content)


def encrypted(path):
    """Parts marked as encrypted."""
    bare(path)
    with open(path, "rb") as file:
        content = bytearray(file.read())
    for mark, place in ((b"PK\3\4", 6), (b"PK\1\2", 8)):
        at = content.find(mark)
        while at >= 0:
            content[at + place] |= 1
            at = content.find(mark, at + 1)
    with open(path, "wb") as file:
        file.write(content)


def compound(path):
    with open(path, "wb") as file:
        file.write(bytes.fromhex("D0CF11E0A1B11AE1") + bytes(4096))


def words(path):
    with open(path, "w", encoding="utf-8") as file:
        file.write("area,persons\n1,2\n")


def empty(path):
    open(path, "wb").close()


globals()[sys.argv[1]](sys.argv[2])
