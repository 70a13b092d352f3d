# SPDX-License-Identifier: GPL-3.0-or-later
"""Prints a part of a workbook as it stands: print_part.py FILE PART"""
import sys
import zipfile

sys.stdout.buffer.write(zipfile.ZipFile(sys.argv[1]).read(sys.argv[2]))
