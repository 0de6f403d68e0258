"""What the programs of a build have run: python3 merge.py BUILD NAME PATTERN [LINES BRANCHES].

Tells the lines and branches of the sources whose path in the project matches PATTERN, and writes into BUILD/NAME.txt
those that nothing ran. Status 1: fewer than LINES or BRANCHES of 100.

A line of a template is in many functions and object files: it has run if one of them ran it, and a branch was taken if one
of them took it. What only an exception takes is no branch, and a call with nothing else to choose has none.
"""
import collections
import json
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
AT_ONCE = 20


def documents(build):
    """What gcov says of each object file that ran."""
    files = sorted(str(p) for p in build.rglob('*.gcda'))
    with tempfile.TemporaryDirectory() as folder:
        for i in range(0, len(files), AT_ONCE):
            said = subprocess.run(['gcov', '--json-format', '--stdout', '--branch-probabilities'] + files[i:i + AT_ONCE],
                                  cwd=folder, capture_output=True, text=True, check=True).stdout
            for line in said.splitlines():
                if line.startswith('{'):
                    yield json.loads(line)


def gather(build, pattern):
    lines = collections.Counter()
    branches = {}  # by place and number of ways: of each way its count, and whether it is thrown
    for document in documents(build):
        folder = pathlib.Path(document['current_working_directory'])
        for file in document['files']:
            path = (folder / file['file']).resolve()
            if ROOT not in path.parents or not pattern.match(str(path.relative_to(ROOT))):
                continue
            path = str(path.relative_to(ROOT))
            for line in file['lines']:
                place = (path, line['line_number'])
                lines[place] += line['count']
                ways = line['branches']
                if not ways:
                    continue
                known = branches.setdefault((place, len(ways)), [[0, False] for _ in ways])
                for way, kept in zip(ways, known):
                    kept[0] += way['count']
                    kept[1] |= way['throw']
    return lines, branches


def part_of(some, all_of):
    return 100 * some / all_of if all_of else 100


def main(build, name, pattern, least=(0, 0)):
    lines, branches = gather(build, re.compile(pattern))
    not_run = [place for place, count in lines.items() if count == 0]
    taken = wanted = 0
    not_taken = set()
    for (place, _), ways in branches.items():
        counts = [count for count, is_thrown in ways if not is_thrown]
        if len(counts) < 2:
            continue
        wanted += len(counts)
        taken += sum(count > 0 for count in counts)
        if min(counts) == 0 and lines[place] > 0:
            not_taken.add(place)
    with open(build / f'{name}.txt', 'w') as out:
        for path, line in sorted(not_run):
            print(f'{path}:{line}: not run', file=out)
        for path, line in sorted(not_taken):
            print(f'{path}:{line}: a branch not taken', file=out)
    of_lines, of_branches = part_of(len(lines) - len(not_run), len(lines)), part_of(taken, wanted)
    print(f'{name}: {of_lines:.1f} % of {len(lines)} lines, {of_branches:.1f} % of {wanted} branches')
    return 0 if of_lines >= least[0] and of_branches >= least[1] else 1


if __name__ == '__main__':
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], sys.argv[3], tuple(map(float, sys.argv[4:6])) or (0, 0)))
