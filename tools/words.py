#!/usr/bin/env python3
"""Brings the catalogues in assets/words up to the texts that the source marks by tr, Tr and TrLater: a text that is
missing comes in without a translation, one that nobody shows goes. Says what is still to be translated.

    tools/words.py              brings all catalogues up to date
    tools/words.py de add.json  and takes translations from a list of {"en": ..., "de": ...} besides
"""
import json
import pathlib
import re
import sys
import xml.etree.ElementTree as tree
from xml.sax.saxutils import escape

TOP = pathlib.Path(__file__).resolve().parent.parent
LITERAL = r'"(?:[^"\\\n]|\\.)*"'
MARK = re.compile(r'\b(?:tr|Tr|TrLater)\(\s*((?:' + LITERAL + r'\s*)+)')
ESCAPES = {'n': '\n', 't': '\t', '"': '"', '\\': '\\'}


def texts_of(source):
    """The texts that a source file marks, as the compiler reads them."""
    for literals in MARK.findall(source):
        joined = ''.join(piece[1:-1] for piece in re.findall(LITERAL, literals))
        yield re.sub(r'\\(.)', lambda found: ESCAPES.get(found[1], found[1]), joined)


def marked():
    found = set()
    for path in TOP.glob('src/**/*'):
        if path.suffix in ('.cpp', '.h') and path.name != 'Tr.h':
            found.update(texts_of(path.read_text(encoding='utf-8')))
    return found


def read(path):
    words = {}
    for message in tree.parse(path).getroot().iter('message'):
        said = message.find('translation')
        words[message.findtext('source')] = '' if said.get('type') == 'unfinished' else said.text or ''
    return words


def write(path, language, words):
    with open(path, 'w', encoding='utf-8') as file:
        file.write('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
        file.write(f'<TS version="2.1" language="{language}">\n<context>\n    <name>Kinalyx</name>\n')
        for text in sorted(words):
            said = words[text]
            element = f'<translation>{escape(said)}</translation>' if said else '<translation type="unfinished"></translation>'
            file.write(f'    <message>\n        <source>{escape(text)}</source>\n        {element}\n    </message>\n')
        file.write('</context>\n</TS>\n')


def main(arguments):
    added = {}
    if arguments:
        language, *files = arguments
        for name in files:
            for entry in json.loads(pathlib.Path(name).read_text(encoding='utf-8')):
                if entry.get(language):
                    added.setdefault(language, {})[entry['en']] = entry[language]
    wanted = marked()
    for path in sorted((TOP / 'assets/words').glob('*.ts')):
        language = path.stem
        known = {**read(path), **added.get(language, {})}
        words = {text: known.get(text, '') for text in wanted}
        write(path, language, words)
        missing = sorted(text for text, said in words.items() if not said)
        print(f'{language}: {len(words)} texts, {len(missing)} to translate')
        for text in missing:
            print(f'    {text!r}')


main(sys.argv[1:])
