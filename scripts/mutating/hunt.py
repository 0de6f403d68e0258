"""Builds a tree that holds all changes as switches, and tries them. See scripts/mutants."""
import concurrent.futures
import hashlib
import json
import os
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import sites as changing

ROOT = Path(__file__).resolve().parents[2]
WORK = ROOT / 'build' / 'mutants'
MUTATED = ['model', 'store']
LEFT_OUT = ['store/windows/']  # no native test can reach it
PROGRAMS = ['core', 'timing', 'cta', 'displayid', 'edid', 'store', 'cli', 'golden', 'corpus', 'editor', 'monkey']
# Where a change is made for good, the programs that are built for it: those of the room, and those that look at all.
NEAR = {'model/core': ['core', 'timing', 'edid'], 'model/timing': ['timing'], 'model/cta': ['cta'],
        'model/displayid': ['displayid'], 'model/edid': ['edid'], 'store': ['store']}
FAR = {'model': ['golden', 'corpus', 'cli', 'editor'], 'store': ['cli', 'editor']}
MOST_SURVIVE = 0.03
MOST_NUMBERS = 999983  # below what mutants.h has room for
EQUIVALENT = Path(__file__).resolve().parent / 'equivalent.txt'


def tracked_files():
    listed = subprocess.run(['git', 'ls-files', '-co', '--exclude-standard'], cwd=ROOT, capture_output=True, text=True, check=True)
    return [f for f in listed.stdout.split('\n') if f and (ROOT / f).is_file()]


def put(path, text):
    if path.exists() and path.read_bytes() == text:
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(text)


class Tree:
    """A copy of the sources and its build."""

    def __init__(self, name, flags):
        self.source, self.build, self.flags = WORK / name / 'tree', WORK / name / 'build', flags

    def copy(self, changed):
        for name in tracked_files():
            put(self.source / name, changed[name].encode() if name in changed else (ROOT / name).read_bytes())
        if not (self.build / 'build.ninja').exists():
            subprocess.run(['cmake', '-S', self.source, '-B', self.build, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Debug',
                            f'-DCMAKE_CXX_FLAGS_DEBUG={self.flags}', '-DCMAKE_CXX_COMPILER_LAUNCHER=', '-DCCACHE=CCACHE-NOTFOUND'],
                           check=True, capture_output=True)

    def make(self, programs, jobs, seconds):
        done = subprocess.run(['timeout', str(max(1, int(seconds))), 'ninja', '-C', self.build, '-k', '0', f'-j{jobs}']
                              + [f'{p}_test' for p in programs], capture_output=True, text=True)
        return done.returncode, done.stdout

    def run(self, program, environment, limit):
        """Whether it passes."""
        with tempfile.TemporaryDirectory(prefix='vantelle-mutant-') as folder:
            command = f'ulimit -v 8000000; exec timeout -k 2 {limit:.0f} {self.build}/bin/{program}_test --gtest_brief=1'
            return subprocess.run(['bash', '-c', command], cwd=folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  env={**os.environ, 'TMPDIR': folder, 'GTEST_FAIL_FAST': '1', **environment}).returncode == 0


class Hunt:
    def __init__(self, options):
        self.options = options
        self.deadline = time.time() + options.seconds if options.seconds else float('inf')
        self.texts = {f: (ROOT / f).read_text() for f in tracked_files()
                      if f.startswith(tuple(m + '/' for m in MUTATED)) and f.endswith(('.h', '.cpp')) and not f.startswith(tuple(LEFT_OUT))}
        self.sites = [s for f in sorted(self.texts) for s in changing.find_sites(f, self.texts[f])]
        # By what they are and not by their order, so that a change of one file leaves the others built.
        for site in self.sites:
            site.number = int(hashlib.sha256(self.key(site).encode()).hexdigest()[:8], 16) % MOST_NUMBERS
        self.switched = Tree('switched', f'-O0 -w -include {ROOT}/scripts/mutating/mutants.h')
        self.plain = Tree('plain', '-O0 -w')
        self.reached, self.seconds = {}, {}
        self.is_copied = False
        self.programs = PROGRAMS
        state = hashlib.sha256(''.join(f + t for f, t in self.texts.items()).encode()).hexdigest()
        self.notes = WORK / 'found.json'
        self.found = {}
        if self.notes.exists() and not options.again:
            noted = json.loads(self.notes.read_text())
            # What the tests noticed they notice still; what survived is tried again when anything has changed.
            self.found = {k: v for k, v in noted['found'].items() if v != 'survived' or noted['state'] == self.tests_state(state)}
        self.state = self.tests_state(state)

    def tests_state(self, state):
        tests = ''.join(f + (ROOT / f).read_text(errors='replace') for f in tracked_files() if f.startswith('tests/') and f.endswith(('.h', '.cpp', '.txt')))
        return state + hashlib.sha256(tests.encode()).hexdigest()

    def key(self, site):
        text = self.texts[site.path]
        start = text.rfind('\n', 0, site.begin) + 1
        line = text[start:text.find('\n', site.end)].strip()
        return f'{site.path} | {line} | {site.begin - start} | {site.kind} {" ".join(site.plain.split())}'

    @staticmethod
    def room_of(site):
        return next(r for r in NEAR if site.path.startswith(r + '/'))

    def save(self):
        self.notes.parent.mkdir(parents=True, exist_ok=True)
        self.notes.write_text(json.dumps({'state': self.state, 'found': self.found}, indent=0))

    def left(self):
        return self.deadline - time.time()

    def build_switched(self, drawn):
        """Leaves out the switches that don't compile, until all that is left does."""
        wanted = {s.number for s in drawn}
        refused_file = WORK / 'refused.json'
        refused = set(json.loads(refused_file.read_text())) if refused_file.exists() else set()
        for _ in range(40):
            changed = {f: changing.with_switches(t, [s for s in self.sites if s.path == f and s.number in wanted and self.key(s) not in refused])
                       for f, t in self.texts.items()}
            self.switched.copy(changed)
            status, output = self.switched.make(self.programs, self.options.jobs, min(self.left(), 1e6))
            refused_file.write_text(json.dumps(sorted(refused)))
            if status == 0:
                return True
            if self.left() <= 5:
                return False
            before = len(refused)
            # The line of the error is to blame, or one that it was come to from.
            for path, line in set(re.findall(r'tree/((?:model|store)/[\w/.]+):(\d+):\d+: error', output)):
                refused |= {self.key(s) for s in self.sites if s.path == path and s.line == int(line)}
            if len(refused) == before:
                for path, line in set(re.findall(r'tree/((?:model|store)/[\w/.]+):(\d+):', output)):
                    refused |= {self.key(s) for s in self.sites if s.path == path and abs(s.line - int(line)) <= 1}
            if len(refused) == before:
                sys.exit('the tree with switches does not build:\n' + '\n'.join(output.split('\n')[-60:]))
        return False

    def look_once(self):
        """Which switches each program comes to, and how long it takes."""
        for program in self.programs:
            reached = WORK / f'reached-{program}'
            begin = time.time()
            if not self.switched.run(program, {'VANTELLE_REACHED': str(reached)}, 600):
                sys.exit(f'{program}_test fails without any change')
            self.seconds[program] = time.time() - begin
            self.reached[program] = set(map(int, reached.read_text().split()))
        print('programs: ' + ', '.join(f'{p} {s:.1f} s' for p, s in self.seconds.items()), flush=True)

    def try_switched(self, site, programs):
        for program in programs:
            if not self.switched.run(program, {'VANTELLE_MUTANT': str(site.number)}, 10 + 5 * self.seconds[program]):
                return f'noticed by {program}_test'
        return 'survived'

    def try_plain(self, site):
        text = self.texts[site.path]
        room = self.room_of(site)
        if not self.is_copied:
            self.plain.copy({})
            self.plain.make(self.programs, self.options.jobs, min(self.left(), 1e6))
            self.is_copied = True
        file = self.plain.source / site.path
        file.write_text(text[:site.begin] + site.plain + text[site.end:])
        try:
            for programs in (NEAR[room], [] if self.options.near else FAR[room.split('/')[0]]):
                for program in programs:
                    status, output = self.plain.make([program], self.options.jobs, min(self.left(), 1e6))
                    if status != 0:
                        return 'out of time' if self.left() <= 1 else 'refused by the compiler'
                    if not self.plain.run(program, {}, 120):
                        return f'noticed by {program}_test'
            return 'survived'
        finally:
            file.write_text(text)

    def run(self):
        equivalent = [line.split(' || ')[0] for line in EQUIVALENT.read_text().split('\n') if ' || ' in line]
        wanted = tuple(p.rstrip('/') for p in self.options.paths)
        drawn = [s for s in changing.choose(self.sites, self.options.seed)
                 if any(s.path == w or s.path.startswith(w + '/') for w in wanted)]
        print(f'{len(self.sites)} changes, {len(drawn)} of them in {" ".join(wanted)}', flush=True)
        # Some more than are wanted: not all of them compile.
        drawn = [s for s in drawn if self.key(s) not in equivalent][:self.options.count * 5 // 4]
        if self.options.near:
            near = {p for s in drawn for p in NEAR[self.room_of(s)]}
            self.programs = [p for p in PROGRAMS if p in near]
        if not self.build_switched(drawn):
            print('out of time while building; call again')
            return 2
        self.look_once()
        queue, later = [], []
        counted = 0
        for site in drawn:
            known = self.found.get(self.key(site))
            if known == 'refused by the compiler':
                continue
            counted += 1
            if counted > self.options.count:
                break
            if known is not None:
                continue
            programs = sorted((p for p in self.programs if site.number in self.reached[p]), key=lambda p: self.seconds[p])
            (queue if programs else later).append((site, programs))
        with concurrent.futures.ThreadPoolExecutor(self.options.jobs) as pool:
            def work(item):
                if self.left() > 20:
                    self.found[self.key(item[0])] = self.try_switched(*item)
            list(pool.map(work, queue))
        self.save()
        for site, _ in later:
            if self.left() <= 30:
                break
            outcome = self.try_plain(site)
            if outcome != 'out of time':
                self.found[self.key(site)] = outcome
                self.save()
        return self.report(drawn)

    def report(self, drawn):
        outcomes = []
        for site in drawn:
            outcome = self.found.get(self.key(site))
            if outcome is not None and outcome != 'refused by the compiler':
                outcomes.append((site, outcome))
        outcomes = outcomes[:self.options.count]
        survivors = [s for s, outcome in outcomes if outcome == 'survived']
        for site in sorted(survivors, key=lambda s: (s.path, s.line)):
            print('survived ' + site.says(self.texts[site.path]))
            print('    ' + self.key(site))
        if not outcomes:
            print('nothing tried')
            return 2
        print(f'{len(survivors)} of {len(outcomes)} survived ({100 * len(survivors) / len(outcomes):.1f} %), '
              f'{self.options.count - len(outcomes)} of {self.options.count} not tried yet')
        return 0 if len(survivors) <= MOST_SURVIVE * len(outcomes) else 1


def main(options):
    WORK.mkdir(parents=True, exist_ok=True)
    return Hunt(options).run()
