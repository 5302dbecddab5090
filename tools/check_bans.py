#!/usr/bin/env python3
"""Names what the sources may not use, and where they do.

    tools/check_bans.py [ROOT]

Banned in teskara, host and program: functions whose result depends on the locale or is undefined for some input, copies
without a bound, casts in the manner of C, and formats that are not known when the program is compiled.
"""

import re
import sys
from pathlib import Path

FOLDERS = ("teskara", "host", "program")

# Why a function is banned, and what stands in its place.
BANNED = {
    "depends on the locale; see core/Numbers.h and core/AsciiCase.h":
        "atof strtod strtof strtold stod stof stold scanf sscanf fscanf vsscanf tolower toupper isalpha isdigit isalnum "
        "isspace isupper islower isprint ispunct isxdigit isgraph iscntrl setlocale localeconv strcoll strxfrm strftime "
        "wcstombs mbstowcs mbrtowc wcrtomb",
    "is undefined for numbers out of range; see core/Numbers.h":
        "atoi atol atoll strtol strtoll strtoul strtoull stoi stol stoll stoul stoull",
    "copies without a bound, or leaves a text without an end; see core/BoundedText.h":
        "strcpy strcat sprintf vsprintf gets stpcpy strncpy strncat wcscpy wcscat alloca strdupa",
    "keeps its result in memory of its own": "strtok asctime ctime gmtime localtime tmpnam rand srand",
}
REASONS = {name: reason for reason, names in BANNED.items() for name in names.split()}
CALL = re.compile(r"(?<![\w.>])(?:std::|::)?(" + "|".join(REASONS) + r")\s*\(")

# A type in brackets with a value behind it. Parameters without a name, and types of function pointers, have none.
NUMBER = (r"(?:unsigned|signed|int|char|char8_t|char16_t|char32_t|short|long|float|double|bool|[ui](?:8|16|32|64)|"
          r"(?:std::)?(?:size_t|ptrdiff_t|u?int(?:8|16|32|64|ptr)_t))(?:\s+(?:int|char|short|long))*")
CAST = re.compile(rf"(?<![\w\])>])\s*\(\s*(?:const\s+)?(?:{NUMBER}(?:\s*const)?\s*[*&]*|void\s*\*+|[A-Z_]\w*\s*\*+)\s*\)\s*"
                  r"(?:[\w(\"'~]|[-+*&!](?=[\w(]))")
NO_CASTS = re.compile(r"\b(?:sizeof|alignof|decltype|operator|noexcept|override|const|final)\s*$")
WORDS_BEHIND_PARAMETERS = re.compile(r"(?:const|noexcept|override|final|mutable)\b")

# Functions that take a format, and which of their arguments it is.
FORMATTING = {"printf": 0, "fprintf": 1, "snprintf": 2, "vsnprintf": 2, "FormatBounded": 2, "PrintLine": 0, "Warn": 0,
              "Print": 0, "FailInAttribute": 1, "Explain": 0}
FORMAT_CALL = re.compile(r"(?<!\w)(" + "|".join(FORMATTING) + r")\s*\(")
# What stands before a name that operations of other classes have too.
SHARED_NAMES = {"Print": re.compile(r"(?:Output\(\)|m_Console)\.$")}

TEXTS_AND_COMMENTS = re.compile(
    r'R"(\w*)\((?:.|\n)*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|//[^\n]*|/\*(?:.|\n)*?\*/')


def without_texts(source):
    """The source with its literals emptied and its comments blank; lines stay where they are."""
    def blank(match):
        text = match.group()
        lines = "\n" * text.count("\n")
        if text.startswith(("//", "/*")):
            return " " + lines
        return ("''" if text.startswith("'") else '""') + lines
    # An apostrophe between digits is no quote.
    return TEXTS_AND_COMMENTS.sub(blank, re.sub(r"(?<=\d)'(?=\d)", "", source))


def arguments_from(source, at):
    """The arguments of a call whose bracket opens before at."""
    arguments, start, depth = [], at, 0
    for place in range(at, len(source)):
        letter = source[place]
        if letter in "([{":
            depth += 1
        elif letter in ")]}" and depth:
            depth -= 1
        elif letter == ")" or (letter == "," and not depth):
            arguments.append(source[start:place].strip())
            start = place + 1
            if letter == ")":
                break
    return arguments


def is_known_format(text, source):
    """A literal; a constant of the file or of the toolkit's messages; a parameter that is a format for whoever calls."""
    if text.startswith('""') or re.fullmatch(r"Messages::\w+", text) or re.match(r"const char\s*\*|std::|const std::", text):
        return True
    if re.fullmatch(r"\w+", text):
        constant = rf"constexpr (?:const char\s*\*\s*(?:const )?{text}|char {text}\[)"
        parameter = rf"const char\s*\* {text}[,)]"
        return bool(re.search(constant, source)) or (text in ("format", "usage") and bool(re.search(parameter, source)))
    # A member of a row of the file's own constants.
    row = re.fullmatch(r"\w+\.(\w+)", text)
    return bool(row) and bool(re.search(rf"const char\s*\* {row.group(1)};", source)) and "constexpr" in source


def line_of(source, place):
    return source.count("\n", 0, place) + 1


def findings_in(name, text):
    source = without_texts(text)
    for match in CALL.finditer(source):
        yield f"{name}:{line_of(source, match.start(1))}: {match.group(1)} {REASONS[match.group(1)]}"
    for match in CAST.finditer(source):
        behind = source[match.end() - 1:]
        if not NO_CASTS.search(source[:match.start() + 1].rstrip("(").rstrip()) and not WORDS_BEHIND_PARAMETERS.match(behind):
            line = source[match.start():match.end()].strip()
            yield f"{name}:{line_of(source, match.end())}: {line!r} casts in the manner of C"
    for match in FORMAT_CALL.finditer(source):
        function = match.group(1)
        before = SHARED_NAMES.get(function)
        if before and not before.search(source[:match.start()]):
            continue
        arguments = arguments_from(source, match.end())
        index = FORMATTING[function]
        if len(arguments) > index and arguments[index] and not is_known_format(arguments[index], source):
            yield f"{name}:{line_of(source, match.start())}: the format of {function} is not known before it runs"


def findings(root):
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                yield from findings_in(path.relative_to(root).as_posix(), path.read_text(encoding="utf-8"))


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    found = list(findings(root))
    print(*found, sep="\n", end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
