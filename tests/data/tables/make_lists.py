#!/usr/bin/env python3
"""Makes the lists of this folder that a program writes; the others, *.vcf and quotes.csv, are written by hand.
Needs python3-openpyxl and libreoffice-calc-nogui. What becomes of each of their rows stands in golden_lists.txt, which
is not made here: it says what must come out."""
import csv
import datetime
import os
import shutil
import subprocess
import tempfile

import openpyxl
from openpyxl.styles import numbers

HERE = os.path.dirname(os.path.abspath(__file__))
PEOPLE = [
    ["Name", "City", "Phone"],
    ["Ann", "Bath", "07700 900100"],
    ['Bob "Bo" Hill', "Stoke, north", "+44 7700 900101"],
    ["J\u00f6rg\nand Eva", "", "0044 (0)7700/900-102"],
    ["Zo\u00eb", "York", ""],
    ["", "", ""],
    ["Dee", "Ely", "7700900104"],
    ["Eve", "Ayr", "4.477E+11"],
]


def path(name):
    return os.path.join(HERE, name)


def text(name, encoding, **dialect):
    with open(path(name), "w", newline="", encoding=encoding) as file:
        csv.writer(file, **dialect).writerows(PEOPLE)


def workbook():
    book = openpyxl.Workbook()
    notes = book.active
    notes.title = "Notes"
    notes.append(["Nothing", "here"])
    notes.sheet_state = "hidden"
    sheet = book.create_sheet("People")
    sheet.append(["Name", "Phone", "Born", "Fee", "Code", "Sum", "Late"])
    sheet.append(["Ann", "07700 900100", datetime.date(1990, 2, 3), 12.5, 7, "=D2*2", True])
    sheet.append(["J\u00f6rg & <Eva>", 447700900101, datetime.date(1899, 12, 31), 1234567.891, 42, "=1/0", False])
    sheet.append(["Dee", 7700900102, datetime.datetime(2026, 12, 24, 18, 30), 0.1 + 0.2, 123456, '="x"&"y"', None])
    sheet.append([])
    sheet.append(["Eve", 4.47700900103e17, None, -3, None, None, None])
    sheet.append(["  Fay ", "'07700900104", None, 0, 0, None, "late"])
    for row in range(2, 8):
        sheet.cell(row, 3).number_format = "dd/mm/yyyy"
        sheet.cell(row, 4).number_format = numbers.FORMAT_NUMBER_COMMA_SEPARATED1
        sheet.cell(row, 5).number_format = "00000"
    sheet.cell(4, 3).number_format = 'd mmmm yyyy "at" h:mm AM/PM'
    sheet["A2"].comment = openpyxl.comments.Comment("not for sending", "secretary")
    book.create_sheet("Spare").append(["Phone", "Name"])
    book["Spare"].append(["07700900105", "Gil"])
    book.save(path("openpyxl.xlsx"))


def convert():
    with tempfile.TemporaryDirectory() as folder:
        for kind in ("ods", "xlsx", "csv"):
            subprocess.run(["soffice", "--headless", "--convert-to", kind, "--outdir", folder, path("openpyxl.xlsx")],
                           check=True, stdout=subprocess.DEVNULL)
            made = os.path.join(folder, "openpyxl." + kind)
            if kind != "csv":  # of which it writes another sheet
                shutil.copy(made, path("libreoffice." + kind))


# Encodings by the numbers that LibreOffice has for them.
def of_libreoffice(people, encodings):
    with tempfile.TemporaryDirectory() as folder:
        source = os.path.join(folder, "people.csv")
        with open(source, "w", newline="", encoding="utf-8") as file:
            csv.writer(file).writerows(people)
        for name, number, delimiter in encodings:
            # columns as they are displayed, and each that is read a text
            subprocess.run(["soffice", "--headless", "--infilter=CSV:44,34,76,1,1/2/2/2/3/2", "--convert-to",
                            "csv:Text - txt - csv (StarCalc):%d,34,%d,1,,0,false,true,false" % (ord(delimiter), number),
                            "--outdir", os.path.join(folder, name), source], check=True, stdout=subprocess.DEVNULL)
            shutil.copy(os.path.join(folder, name, "people.csv"), path("libreoffice_%s.csv" % name))


of_libreoffice([["Name", "City", "Phone"],
                ["\u0141ukasz \u017bak", "\u0141\u00f3d\u017a", "+48 501 234 567"],
                ['Zofia "Zo" \u015al\u0119k', "Gda\u0144sk, port", "0501 234 568"],
                ["Ewa", "", "501234569"]],
               [("utf8", 76, ","), ("1250", 33, ";"), ("latin2", 13, ","), ("utf16", 65535, ",")])
of_libreoffice([["Name", "City", "Phone"],
                ["\u0418\u0432\u0430\u043d \u041f\u0435\u0442\u0440\u043e\u0432", "\u041c\u043e\u0441\u043a\u0432\u0430",
                 "8 912 345-67-89"],
                ['\u042e\u043b\u0438\u044f "\u042e"', "\u041e\u0440\u0451\u043b, \u0446\u0435\u043d\u0442\u0440",
                 "+7 912 345 67 90"],
                ["\u0417\u043e\u0435", "", "9123456791"]],
               [("1251", 34, ";")])
text("comma.csv", "utf-8", dialect="excel")
text("semicolon.csv", "cp1252", delimiter=";", quoting=csv.QUOTE_ALL)
text("tab.tsv", "utf-16", dialect="excel-tab")
text("unix.csv", "utf-8-sig", dialect="unix")
workbook()
convert()
