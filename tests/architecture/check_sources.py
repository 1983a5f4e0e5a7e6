"""Checks how the sources are divided and who includes whom; prints what breaks a rule and ends with status 1.

The folders and their order are read from the table "Rooms" of docs/architecture.md. Called with the folder of the
project; --rules lists the rules that are checked.
"""
import re
import sys
from collections import defaultdict
from pathlib import Path

MOST_FILES = 40  # in one folder
MOST_LINES = 400  # in one file

# Folders whose names are fixed and whose classes are listed by name.
FIXED_FOLDERS = {"src/FieldEditors", "src/FieldEditors/MFWidgets", "src/FieldEditors/SFWidgets"}

# Units (a header and its source) that need each other, and why they may.
ALLOWED_CIRCLES = {
    "an error is handled by its handler, whose failures are debug errors": {
        "meridane/base/errors/ErrorClass",
        "meridane/base/errors/NxDebugError",
        "meridane/base/errors/NxError",
        "meridane/base/errors/NxErrorHandler",
        "meridane/base/errors/detail/ErrorClassMembers",
    },
    "a queue runs its sensors, and a sensor leaves its queue when it dies": {
        "meridane/base/NxDelayQueue",
        "meridane/base/NxDelayQueueSensor",
    },
    "a field knows its container, a container describes its fields, both notify their sensors and record their changes": {
        "meridane/scene/fields/ChangeRecord",
        "meridane/scene/fields/ChangeRecorder",
        "meridane/scene/fields/NxField",
        "meridane/scene/fields/NxFieldContainer",
        "meridane/scene/fields/NxFieldData",
        "meridane/scene/fields/NxFieldSensor",
        "meridane/scene/fields/NxNodeSensor",
        "meridane/scene/fields/detail/FieldRecords",
        "meridane/scene/fields/detail/IgnoredRecord",
        "meridane/scene/fields/detail/NameRecord",
    },
    "a group records the changes of its children, and a record takes them back": {
        "meridane/scene/nodes/ChildrenRecord",
        "meridane/scene/nodes/NxGroup",
    },
    "a multi-value editor makes its table, and table and delegate are made with the editor that they ask for texts": {
        "src/FieldEditors/MFWidgets/DvMFColorTable",
        "src/FieldEditors/MFWidgets/DvMFColorTableItemDelegate",
        "src/FieldEditors/MFWidgets/DvMFieldTable",
        "src/FieldEditors/MFWidgets/DvMFieldTableItemDelegate",
        "src/FieldEditors/MFWidgets/DvMFieldWidget",
        "src/FieldEditors/MFWidgets/RowColor",
    },
    "a grid of lines makes its lines, and a line is made with the grid that it belongs to": {
        "src/FieldEditors/MFWidgets/DvTablePopupLineEdit",
        "src/FieldEditors/MFWidgets/DvTablePopupWidget",
    },
}


def listed_sources(project):
    """The sources of the project as paths relative to it, those that are not yet committed included."""
    folders = [project / name for name in ("meridane", "orvane", "src", "plugins", "tests", "benchmarks", "fuzz", "examples")]
    files = [file for folder in folders for file in folder.rglob("*") if file.suffix in (".h", ".cpp")]
    return sorted(str(file.relative_to(project)) for file in files)


def included(project, sources):
    """For each source, the project's headers that it includes."""
    known = set(sources)
    result = {}
    for source in sources:
        names = re.findall(r'^\s*#\s*include\s+"([^"]+)"', (project / source).read_text(), re.MULTILINE)
        candidates = ([name, f"src/{name}", f"tests/{name}", str(Path(source).parent / name)] for name in names)
        found = (next((path for path in paths if path in known), None) for paths in candidates)
        result[source] = [path for path in found if path]
    return result


def room_of(path):
    """The folder of a source; what is private in a room belongs to the room."""
    return str(Path(path).parent).removesuffix("/detail")


def drawn_rooms(project):
    """The libraries of the table in docs/architecture.md, each with its rooms from the lowest to the highest."""
    text = (project / "docs" / "architecture.md").read_text()
    table = re.search(r"^## Rooms\n(.*?)(?=^## |\Z)", text, re.MULTILINE | re.DOTALL)
    if not table:
        sys.exit('docs/architecture.md has no section "Rooms"')
    rooms = {}
    for library, names in re.findall(r"^\| `([\w/]+)` \| (.+?) \|$", table[1], re.MULTILINE):
        rooms[library] = [f"{library}/{name}".removesuffix("/.") for name in re.findall(r"`([\w./]+)`", names)]
    return rooms


def folders_hold_few_files(project, sources, includes):
    """No folder holds more than 40 files."""
    files = defaultdict(int)
    for path in sources:
        files[str(Path(path).parent)] += 1
    for folder, count in files.items():
        if count > MOST_FILES and folder not in FIXED_FOLDERS:
            yield f"{folder} holds {count} files, more than {MOST_FILES}"


def files_are_short(project, sources, includes):
    """No file has more than 400 lines."""
    for path in sources:
        lines = (project / path).read_text().count("\n")
        if lines > MOST_LINES:
            yield f"{path} has {lines} lines, more than {MOST_LINES}"


def rooms_are_layered(project, sources, includes):
    """A room of a library includes only what is drawn below it in docs/architecture.md."""
    for library, rooms in drawn_rooms(project).items():
        inside = [path for path in sources if path.startswith(library + "/")]
        for room in sorted({room_of(path) for path in inside} - set(rooms)):
            yield f"{room} isn't in the table of docs/architecture.md"
        for room in sorted(set(rooms) - {room_of(path) for path in inside}):
            yield f"{room} is in the table of docs/architecture.md, but holds no source"
        height = {room: level for level, room in enumerate(rooms)}
        for path in inside:
            for header in includes[path]:
                if height.get(room_of(header), -1) > height.get(room_of(path), len(rooms)):
                    yield f"{path} includes {header}, which is above it"


def private_headers_stay_private(project, sources, includes):
    """Headers in a folder "detail" are included by their own library and by tests and measurements alone."""
    def library_of(path):
        parts = Path(path).parts
        return parts[0] if parts[0] in ("src", "plugins", "examples") else "/".join(parts[:2])

    for path in sources:
        if path.startswith(("tests/", "benchmarks/", "fuzz/")):
            continue
        for header in includes[path]:
            if "/detail/" in header and library_of(header) != library_of(path):
                yield f"{path} includes {header}, which is private"


def units_include_no_circles(project, sources, includes):
    """No header and source need each other through others, but for the circles that are listed with their reasons."""
    edges = defaultdict(set)
    for path in sources:
        if not path.startswith("tests/"):
            unit = str(Path(path).with_suffix(""))
            edges[unit] |= {str(Path(header).with_suffix("")) for header in includes[path]} - {unit}
    circles = [circle for circle in strongly_connected(edges) if len(circle) > 1]
    for circle in circles:
        if circle not in ALLOWED_CIRCLES.values():
            yield "these include each other: " + ", ".join(sorted(circle))
    for reason, circle in ALLOWED_CIRCLES.items():
        if circle not in circles:
            yield f'there is no such circle any more ("{reason}"): take it off the list'


def contract_is_documented(project, sources, includes):
    """Each file with a rule of the contract is in docs/contract.md, and the tests that are named there exist."""
    rules = re.findall(r"^\| (`.+?) \| .+ \| (`[^|]+`) \|$", (project / "docs" / "contract.md").read_text(), re.MULTILINE)
    classes = {name for rule, _ in rules for name in re.findall(r"`(\w+)`", rule)}
    for path in sources:
        if path.startswith(("meridane/", "orvane/", "src/")) and "Contract: " in (project / path).read_text():
            if Path(path).stem not in classes:
                yield f"{path} has a rule of the contract, but docs/contract.md has none of {Path(path).stem}"
    for _, test in rules:
        file, function = re.fullmatch(r"`(.+)` `(\w+)`", test).groups()
        path = project / "tests" / "plugin" / file
        if not path.exists() or not re.search(rf"void (\w+::)?{function}\(\)\s*{{", path.read_text()):
            yield f"docs/contract.md names {file} {function}, which doesn't exist"


def features_are_tested(project, sources, includes):
    """The tests that are named in docs/features.md exist."""
    page = (project / "docs" / "features.md").read_text()
    for place, function in re.findall(r"^\| .+ \| .+ \| `([\w/]+)` `(\w+)` \|$", page, re.MULTILINE):
        folder, name = place.rsplit("/", 1)
        source = project / "tests" / folder / f"tst_{name}.cpp"
        words = re.sub(r"([A-Z])", r"_\1", name).lower()
        script = project / "tests" / folder / f"test{words}.py"
        is_source = source.exists() and re.search(rf"void (\w+::)?{function}\(\)\s*{{", source.read_text())
        is_script = script.exists() and f"def {function}(" in script.read_text()
        if not is_source and not is_script:
            yield f"docs/features.md names {place} {function}, which doesn't exist"


def strongly_connected(edges):
    """The strongly connected parts of a graph, found by Tarjan's algorithm without recursion."""
    index, low, stack, on_stack, parts = {}, {}, [], set(), []
    for root in list(edges):
        if root in index:
            continue
        work = [(root, iter(sorted(edges[root])))]
        index[root] = low[root] = len(index)
        stack.append(root)
        on_stack.add(root)
        while work:
            node, successors = work[-1]
            for successor in successors:
                if successor not in index:
                    index[successor] = low[successor] = len(index)
                    stack.append(successor)
                    on_stack.add(successor)
                    work.append((successor, iter(sorted(edges.get(successor, ())))))
                    break
                if successor in on_stack:
                    low[node] = min(low[node], index[successor])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[node])
                if low[node] == index[node]:
                    part = set(stack[stack.index(node):])
                    del stack[stack.index(node):]
                    on_stack -= part
                    parts.append(part)
    return parts


RULES = [folders_hold_few_files, files_are_short, rooms_are_layered, private_headers_stay_private, units_include_no_circles,
         contract_is_documented, features_are_tested]


def main():
    if sys.argv[1:] == ["--rules"]:
        print("\n".join(rule.__doc__ for rule in RULES))
        return 0
    project = Path(sys.argv[1])
    chosen = [rule for rule in RULES if len(sys.argv) < 3 or rule.__name__ in sys.argv[2:]]
    sources = listed_sources(project)
    includes = included(project, sources)
    broken = [message for rule in chosen for message in rule(project, sources, includes)]
    print("\n".join(broken) if broken else f"{len(sources)} sources keep {len(chosen)} rules")
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
