#!/usr/bin/env python3
"""Checks the texts of a translation against those of the sources: check_texts.py SOURCE_DIR LANGUAGE [RULE].

Rules: complete, finished, placeholders, mnemonics, blanks, lengths, quotes, glossary. Without a rule all are checked.
"""

import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PLACEHOLDER = re.compile(r"%L?\d+|%n")
TAG = re.compile(r"</?[a-z]+\d?>")
MNEMONIC = re.compile(r"&(?!&)(.)")
# What the user types in a query or on the command line, and idioms with words of the glossary.
SYNTAX = re.compile(r"\b[tf]:\w+|--\w+|in a row|doesn't state")
# A label: short, and no sentence.
LABEL_LENGTH = 24
LABEL_FACTOR = 1.4
LABEL_ALLOWANCE = 12


class Message:
    """A text of the sources with its translations, several if it has plural forms."""

    def __init__(self, context, element):
        self.context = context
        self.source = element.findtext("source")
        translation = element.find("translation")
        self.state = translation.get("type", "finished")
        forms = translation.findall("numerusform")
        self.texts = [form.text or "" for form in forms] if forms else [translation.text or ""]

    def complaint(self, problem):
        return f'{self.context}: "{self.source}" -> "{" | ".join(self.texts)}": {problem}'


def read(path):
    root = ElementTree.parse(path).getroot()
    return [Message(context.findtext("name"), message) for context in root.iter("context")
            for message in context.iter("message")]


def complete(_, where):
    """All texts of the sources, and no others."""
    check = subprocess.run([where[0] / "script" / "translate", "--check"], capture_output=True, text=True, check=False)
    if check.returncode != 0:
        yield check.stderr.strip() or f"script/translate --check ended with status {check.returncode}"


def finished(messages, _):
    for message in messages:
        if message.state != "finished" or not all(message.texts):
            yield message.complaint("is not translated" if message.state == "unfinished" else f"is {message.state}")


def placeholders(messages, _):
    for message in messages:
        for name, pattern in (("placeholders", PLACEHOLDER), ("tags", TAG)):
            wanted = sorted(pattern.findall(message.source))
            if any(sorted(pattern.findall(text)) != wanted for text in message.texts):
                yield message.complaint(f"other {name}")


def mnemonics(messages, _):
    for message in messages:
        wanted = len(MNEMONIC.findall(message.source))
        for text in message.texts:
            letters = MNEMONIC.findall(text)
            if len(letters) != wanted:
                yield message.complaint("other number of mnemonics")
            elif any(not (letter.isascii() and letter.isalnum()) and letter not in "%" + "ÄÖÜäöü"
                     for letter in letters):
                yield message.complaint("mnemonic that is no letter")


def blanks(messages, _):
    """Blanks and an ellipsis or colon at the ends, and the number of lines, are part of the layout."""
    end = re.compile(r"(…|:|\s)*$")
    for message in messages:
        for text in message.texts:
            if len(text) - len(text.lstrip()) != len(message.source) - len(message.source.lstrip()):
                yield message.complaint("other blanks at the begin")
            if end.search(text).group() != end.search(message.source).group():
                yield message.complaint("other ellipsis, colon or blanks at the end")
            if text.count("\n") != message.source.count("\n"):
                yield message.complaint("other number of lines")


def lengths(messages, _):
    for message in messages:
        if len(message.source) > LABEL_LENGTH or message.source.endswith("."):
            continue
        most = max(len(message.source) * LABEL_FACTOR, len(message.source) + LABEL_ALLOWANCE)
        if any(len(text) > most for text in message.texts):
            yield message.complaint("too long for a label")


def quotes(messages, _):
    """Quotation marks are those of the language; plain ones are syntax that the user types."""
    for message in messages:
        for text in message.texts:
            if text.count("„") != text.count("“") or "”" in text or "'" in re.sub("--find '[^']*'", "", text):
                yield message.complaint("wrong quotation marks")


def terms(source_dir, language):
    """The table of the glossary: pairs of an English term and the stems one of which the translation has."""
    page = source_dir / "docs" / f"glossary-{language}.md"
    table = page.read_text(encoding="utf-8").split("\n## ")[0]
    for line in table.splitlines():
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if line.startswith("|") and len(cells) >= 2 and cells[0] not in ("English",) and not cells[0].startswith("---"):
            yield cells[0], [stem.strip().lower() for stem in cells[1].split(",")]


def glossary(messages, where):
    for term, stems in terms(*where):
        pattern = re.compile(rf"\b{re.escape(term)}(s|es|'s)?\b", re.IGNORECASE)
        for message in messages:
            if not pattern.search(SYNTAX.sub("", message.source.replace("&", ""))):
                continue
            if any(not any(stem in text.replace("&", "").lower() for stem in stems) for text in message.texts):
                yield message.complaint(f'"{term}" is {" or ".join(stems)} in the glossary')


RULES = {rule.__name__: rule for rule in (complete, finished, placeholders, mnemonics, blanks, lengths, quotes, glossary)}


def main():
    source_dir = Path(sys.argv[1])
    language = sys.argv[2]
    messages = read(source_dir / "translations" / f"orvane_{language}.ts")
    if not messages:
        sys.exit("the translation has no texts")
    complaints = [complaint for name in sys.argv[3:] or RULES for complaint in RULES[name](messages, (source_dir, language))]
    print("\n".join(complaints))
    sys.exit(f"{len(complaints)} texts to mend" if complaints else 0)


main()
