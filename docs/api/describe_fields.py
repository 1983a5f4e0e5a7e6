"""A filter of Doxygen for the headers of node classes.

A node class declares its fields with descriptions, which the program shows. They become the comments of the fields, so
that nobody has to write them twice. No line moves, so that messages have the right numbers.
"""

import re
import sys

FIELD = re.compile(
    r'^( +)(?=Nx[SM]F\w+ \w+\{\s*this,\s*\{\s*"\w+",\s*("(?:[^"\\]|\\.)*"(?:\s*"(?:[^"\\]|\\.)*")*))', re.MULTILINE)
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')


def described(match):
    return f"{match[1]}/** {''.join(LITERAL.findall(match[2]))} */ "


with open(sys.argv[1], encoding="utf-8") as header:
    sys.stdout.write(FIELD.sub(described, header.read()))
