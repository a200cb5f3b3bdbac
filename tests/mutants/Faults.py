"""The table of faults, and how each gets into a copy of the sources so that an environment variable switches it on."""

import collections
import pathlib
import re

VARIABLE = "CORVANE_SEEDED_FAULT"
HEADER = "Seeded_Fault.h"
HEADER_TEXT = f"""#pragma once

#include <cstdlib>

/// Whether a fault is the one that the environment asks for.
inline bool Seeded_Fault(int number)
{{
    static const int chosen = [] {{
        const char* text = std::getenv("{VARIABLE}");
        return text ? std::atoi(text) : 0;
    }}();
    return number == chosen;
}}
"""

Fault = collections.namedtuple("Fault", "number room file harm function kind old new")


class Mistake(Exception):
    """A row of the table that does not fit the sources."""


def read_faults(path):
    faults = []
    for number, block in enumerate(blocks_of(path.read_text(encoding="utf-8")), 1):
        head, *rest = block
        fields = {}
        for line in rest:
            name, _, value = line.strip().partition(" ")
            fields[name] = value.strip()
        kinds = [kind for kind in ("expression", "statement") if kind in fields]
        if len(head.split()) != 3 or len(kinds) != 1 or set(fields) - {"in"} != {"harm", "becomes", kinds[0]}:
            raise Mistake(f"the row that begins with '{head}' is not made as the table's head says")
        stated, room, file = head.split()
        if int(stated) != number:
            raise Mistake(f"fault {stated} stands where {number} belongs")
        faults.append(Fault(number, room, file, fields["harm"], fields.get("in", ""), kinds[0], fields[kinds[0]],
                            fields["becomes"]))
    return faults


def blocks_of(text):
    block = []
    for line in text.splitlines() + [""]:
        if line.strip() and not line.startswith("#"):
            block.append(line)
        elif block:
            yield block
            block = []


def only_match(pattern, text, begin, end, what):
    found = [match for match in re.finditer(pattern, text) if begin <= match.start() and match.end() <= end]
    if len(found) != 1:
        raise Mistake(f"{what} occurs {len(found)} times")
    return found[0]


def span_of(fault, text):
    """Where the old text stands."""
    begin, end = 0, len(text)
    if fault.function:
        head = only_match(re.escape(fault.function), text, begin, end, f"fault {fault.number}: '{fault.function}'")
        begin = head.start()
        line = text[text.rfind("\n", 0, begin) + 1:]
        indent = line[:len(line) - len(line.lstrip())]
        end = text.index(f"\n{indent}}}", begin)
    old = r"\s+".join(re.escape(word) for word in fault.old.split())
    return only_match(old, text, begin, end, f"fault {fault.number}: '{fault.old}'").span()


def switched(faults, old):
    """The text that takes the place of an old one, of which all these faults are variants."""
    if faults[0].kind == "statement":
        ways = "".join(f"if (Seeded_Fault({fault.number})) {{ {fault.new} }} else " for fault in faults)
        return f"{{ {ways}{{ {old} }} }}"
    ways = "".join(f"Seeded_Fault({fault.number}) ? ({fault.new}) : " for fault in faults)
    return f"({ways}({old}))"


def with_faults(faults, text):
    """A file's text with all of its faults in it."""
    places = collections.defaultdict(list)
    for fault in faults:
        places[span_of(fault, text)].append(fault)
    spans = sorted(places)
    for before, after in zip(spans, spans[1:]):
        if after[0] < before[1]:
            raise Mistake(f"faults {places[before][0].number} and {places[after][0].number} overlap")
    for begin, end in reversed(spans):
        text = text[:begin] + switched(places[begin, end], text[begin:end]) + text[end:]
    way_up = "../" * (len(pathlib.PurePath(faults[0].file).parts) - 1)
    return f'#include "{way_up}{HEADER}"\n#line 1\n{text}'


def seeded(faults, read):
    """The changed files, by name; read gives a file's text."""
    of_file = collections.defaultdict(list)
    for fault in faults:
        of_file[fault.file].append(fault)
    changed = {file: with_faults(own, read(file)) for file, own in of_file.items()}
    changed[HEADER] = HEADER_TEXT
    return changed
