"""Builds a tree that holds all changes as switches, and tries them. See scripts/mutants."""
import concurrent.futures
import hashlib
import json
import os
import re
import subprocess
import sys
import time
from pathlib import Path

import sites as changing

ROOT = Path(__file__).resolve().parents[2]
WORK = ROOT / 'build' / 'mutants'
SCRATCH = WORK / 'scratch'  # all that a program with a change can write to
MUTATED = ['model', 'store']
LEFT_OUT = ['store/windows/']  # no native test can reach it
SAMPLES = 'samples'  # no test program, but what vantelle-cli says of the sample displays
# The programs that could notice a change of a room, the likeliest first. A change that is built by itself is built for one
# after the other; of a table in a source file the facts tell most, and little is built for them.
FACTS = 'golden'
NOTICING = {
    'model/core': ['core', 'timing', FACTS, 'cta', 'edid', 'displayid', 'corpus', SAMPLES],
    'model/timing': ['timing', FACTS, 'edid', 'cta', 'displayid', 'corpus', SAMPLES],
    'model/cta': ['cta', FACTS, 'edid', 'displayid', 'corpus', SAMPLES],
    'model/displayid': ['displayid', FACTS, 'edid', 'corpus', SAMPLES],
    'model/edid': ['edid', FACTS, 'store', 'corpus', SAMPLES],
    'store/linux': ['store_linux'],
    'store': ['store', 'store_linux', SAMPLES],
}
PROGRAMS = sorted({p for programs in NOTICING.values() for p in programs})
# Tables that nothing of the compiler's hangs on: in the tree with switches they are made when a program starts.
TABLES = ['model/core/code_page.cpp', 'model/timing/preset_timings_table.cpp', 'model/timing/video_format_table.cpp']
QUICK = 0.2  # seconds: tests that take no longer come first
MOST_SURVIVE = 0.03
MOST_NUMBERS = 999983  # below what mutants.h has room for
EQUIVALENT = Path(__file__).resolve().parent / 'equivalent.txt'


def tracked_files():
    listed = subprocess.run(['git', 'ls-files', '-co', '--exclude-standard'], cwd=ROOT, capture_output=True, text=True, check=True)
    return [f for f in listed.stdout.split('\n') if f and (ROOT / f).is_file()]


def digest(text):
    return hashlib.sha256(text.encode()).hexdigest()


def put(path, text):
    if path.exists() and path.read_bytes() == text:
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(text)


class Tree:
    """A copy of the sources and its build: quick to compile and without a look at memory."""

    def __init__(self, name, compiler='c++'):
        self.compiler = compiler
        self.source, self.build = WORK / name / 'tree', WORK / name / 'build'
        # What a change is taken back to has been compiled before. Not the user's own cache: of the rest nothing is asked for again.
        self.environment = {**os.environ, 'CCACHE_DIR': str(WORK / 'ccache'), 'CCACHE_MAXSIZE': '3G'}

    def copy(self, changed):
        wanted = tracked_files()
        for name in wanted:
            put(self.source / name, changed[name].encode() if name in changed else (ROOT / name).read_bytes())
            (self.source / name).chmod((ROOT / name).stat().st_mode)
        gone = {str(f.relative_to(self.source)) for f in self.source.rglob('*') if f.is_file()} - set(wanted)
        for name in gone:
            if not name.startswith('build/'):
                (self.source / name).unlink()
        shared = self.source.parent / 'shared'
        if not shared.is_symlink() and (ROOT.parent / 'shared').exists():
            shared.symlink_to(ROOT.parent / 'shared')
        if not (self.build / 'build.ninja').exists():
            subprocess.run(['cmake', '-S', self.source, '-B', self.build, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Debug',
                            f'-DCMAKE_CXX_COMPILER={self.compiler}',
                            '-DCMAKE_CXX_FLAGS_DEBUG=-O0 -w -Wno-narrowing', '-DVANTELLE_PRECOMPILED=ON', '-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold'],
                           check=True, capture_output=True, env=self.environment)

    def make(self, programs, jobs, seconds):
        targets = [t for p in programs for t in (['vantelle-cli', 'make-samples'] if p == SAMPLES else [f'{p}_test'])]
        done = subprocess.run(['timeout', str(max(1, int(seconds))), 'ninja', '-C', self.build, '-k', '0', f'-j{jobs}'] + targets,
                              capture_output=True, text=True, env=self.environment)
        return done.returncode, done.stdout

    def tests_of(self, program):
        """The names of its tests; one without a name for what has none."""
        if program == SAMPLES:
            return ['']
        listed = subprocess.run([self.build / 'bin' / f'{program}_test', '--gtest_list_tests'], capture_output=True, text=True, check=True)
        suite, tests = '', []
        for line in listed.stdout.split('\n'):
            name = line.split('#')[0].rstrip()
            if name.startswith('  '):
                tests.append(suite + name.strip())
            elif name.endswith('.'):
                suite = name
        return tests

    def run(self, program, environment, seconds, tests=('*',)):
        """Whether they pass within so many seconds of the processor: how busy the machine is doesn't count."""
        if program == SAMPLES:
            what = f'bash {self.source}/scripts/golden --built {self.build}/bin'
        else:
            what = f'{self.build}/bin/{program}_test --gtest_brief=1 "--gtest_filter={":".join(tests)}"'
        (self.source / 'build').mkdir(exist_ok=True)
        SCRATCH.mkdir(exist_ok=True)
        SCRATCH.chmod(0o1777)
        # A change may write, delete or run anything. It sees no file that it could harm, and has no rights of root's, with which
        # it could harm a device.
        is_root = os.geteuid() == 0
        command = ' && '.join([
            f'mount --bind {SCRATCH} {SCRATCH}', 'mount -o remount,bind,ro /',
            *(f'mount -t tmpfs -o mode=1777 tmpfs {folder}' for folder in ('/tmp', '/dev/shm', self.source / 'build')), 'cd /tmp',
            f'ulimit -v 8000000 -t {seconds:.0f}',
            'exec ' + ('setpriv --reuid=65534 --regid=65534 --clear-groups --bounding-set=-all --no-new-privs ' if is_root else '') +
            f'timeout -k 2 {60 + 20 * seconds:.0f} {what}'])
        alone = ['unshare', '--mount'] + ([] if is_root else ['--map-root-user'])
        return subprocess.run(alone + ['bash', '-c', command], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              env={**os.environ, 'HOME': '/tmp', 'TMPDIR': '/tmp', 'GTEST_FAIL_FAST': '1', **environment}).returncode == 0


class Hunt:
    def __init__(self, options):
        self.options = options
        self.deadline = time.time() + options.seconds if options.seconds else float('inf')
        self.texts = {f: (ROOT / f).read_text() for f in tracked_files()
                      if f.startswith(tuple(m + '/' for m in MUTATED)) and f.endswith(('.h', '.cpp')) and not f.startswith(tuple(LEFT_OUT))}
        self.sites = [s for f in sorted(self.texts) for s in changing.find_sites(f, self.texts[f])]
        self.name_sites()
        self.switched, self.plain = Tree('switched'), Tree('plain', 'clang++')  # the quicker one for what is built again and again
        self.reached, self.tests = {}, {}
        self.is_copied = False
        self.notes = WORK / 'found.json'
        # What the tests noticed they notice still; what survived is tried again when anything has changed.
        self.found = json.loads(self.notes.read_text()) if self.notes.exists() and not options.again else {}
        self.state = digest(''.join(f + (ROOT / f).read_text(errors='replace') for f in tracked_files()
                                    if f.startswith(('tests/', 'model/', 'store/', 'samples/')) and f.endswith(('.h', '.cpp', '.txt'))))

    def name_sites(self):
        """By what they are and not by their place, so that a change of one file leaves the others built and drawn."""
        seen = {}
        for site in self.sites:
            text = self.texts[site.path]
            start = text.rfind('\n', 0, site.begin) + 1
            line = text[start:text.find('\n', site.end)].strip()
            key = f'{site.path} | {" ".join(line.split())} | {site.begin - start} | {site.kind} {" ".join(site.plain.split())}'
            seen[key] = seen.get(key, 0) + 1
            site.key = key if seen[key] == 1 else f'{key} #{seen[key]}'
            site.number = int(digest(site.key)[:8], 16) % MOST_NUMBERS

    @staticmethod
    def noticing(site):
        return NOTICING[next(r for r in NOTICING if site.path.startswith(r + '/'))]

    def save(self):
        fresh = self.notes.with_suffix('.new')
        fresh.write_text(json.dumps(self.found, indent=0))
        fresh.rename(self.notes)

    def left(self):
        return self.deadline - time.time()

    def build_switched(self, drawn):
        """Leaves out the switches that don't compile, until all that is left does."""
        wanted = {s.key for s in drawn}
        refused_file = WORK / 'refused.json'
        refused = set(json.loads(refused_file.read_text())) if refused_file.exists() else set()
        for _ in range(40):
            changed = {}
            for f, text in self.texts.items():
                sites = [s for s in self.sites if s.path == f and s.key in wanted and s.has_switch() and s.key not in refused]
                if sites:
                    switched = changing.with_switches(text, sites, f in TABLES)
                    changed[f] = '#include "scripts/mutating/mutants.h"\n#line 1\n' + switched
            self.switched.copy(changed)
            status, output = self.switched.make(PROGRAMS, self.options.jobs, min(self.left(), 1e6))
            if status == 0:
                return True
            if self.left() <= 5:
                return False
            before = len(refused)
            # The line of the error is to blame, or one that it was come to from.
            for path, line in set(re.findall(r'tree/((?:model|store)/[\w/.]+):(\d+):\d+: error', output)):
                refused |= {s.key for s in self.sites if s.path == path and s.line == int(line) and s.key in wanted}
            if len(refused) == before:
                for path, line in set(re.findall(r'tree/((?:model|store)/[\w/.]+):(\d+):', output)):
                    refused |= {s.key for s in self.sites if s.path == path and abs(s.line - int(line)) <= 1 and s.key in wanted}
            if len(refused) == before:
                sys.exit('the tree with switches does not build:\n' + '\n'.join(output.split('\n')[-60:]))
            refused_file.write_text(json.dumps(sorted(refused)))
        return False

    def look_once(self):
        """Which switches each test comes to, and how long it takes."""
        looked_file = WORK / 'looked.json'
        looked = json.loads(looked_file.read_text()) if looked_file.exists() else {}
        for program in PROGRAMS:
            binary = self.switched.build / 'bin' / ('vantelle-cli' if program == SAMPLES else f'{program}_test')
            stamp = str(binary.stat().st_mtime_ns) + digest(self.state if program in (SAMPLES, FACTS) else '')
            if looked.get(program, {}).get('stamp') != stamp:
                with concurrent.futures.ThreadPoolExecutor(self.options.jobs) as pool:
                    tests = dict(pool.map(lambda test: (test, self.look_at(program, test)), self.switched.tests_of(program)))
                looked[program] = {'stamp': stamp, 'tests': tests}
                looked_file.write_text(json.dumps(looked))
            self.tests[program] = {test: (seconds, set(numbers)) for test, (seconds, numbers) in looked[program]['tests'].items()}
            self.reached[program] = set().union(*(numbers for _, numbers in self.tests[program].values()))
        print('programs: ' + ', '.join(f'{p} {self.seconds_of(p):.1f} s' for p in PROGRAMS), flush=True)

    def look_at(self, program, test):
        reached = SCRATCH / f'reached-{digest(program + test)}'
        reached.unlink(missing_ok=True)
        begin = time.time()
        if not self.switched.run(program, {'VANTELLE_REACHED': str(reached)}, 600, [test]):
            sys.exit(f'{program} fails without any change: {test}')
        seconds = time.time() - begin
        numbers = sorted(set(map(int, reached.read_text().split()))) if reached.exists() else []
        reached.unlink(missing_ok=True)
        return seconds, numbers

    def seconds_of(self, program):
        return sum(seconds for seconds, _ in self.tests[program].values())

    def try_switched(self, site):
        for is_quick in (True, False):
            for program in self.noticing(site):
                tests = {test: seconds for test, (seconds, reached) in self.tests[program].items()
                         if site.number in reached and (seconds <= QUICK) == is_quick}
                most = 3 + 4 * sum(tests.values())
                if tests and not self.switched.run(program, {'VANTELLE_MUTANT': str(site.number)}, most, tests):
                    return f'noticed by {program}'
        return self.survived()

    def survived(self):
        return f'survived {self.state}'

    def try_plain(self, site):
        text = self.texts[site.path]
        if not self.is_copied:
            self.plain.copy({})
            status, output = self.plain.make(PROGRAMS, self.options.jobs, min(self.left(), 1e6))
            if status != 0:
                if self.left() <= 5:
                    return None
                sys.exit('the tree without a change does not build:\n' + '\n'.join(output.split('\n')[-60:]))
            self.is_copied = True
        programs = self.noticing(site)
        if site.path.endswith('.cpp') and FACTS in programs and site.kind in ('constant', 'rows swapped'):
            programs = sorted(programs, key=lambda p: p != FACTS)
        file = self.plain.source / site.path
        file.write_text(text[:site.begin] + site.plain + text[site.end:])
        try:
            for program in programs:
                status, _ = self.plain.make([program], self.options.jobs, min(self.left(), 1e6))
                if status != 0:
                    return None if self.left() <= 1 else 'refused by the compiler'
                if not self.plain.run(program, {}, 3 + 4 * self.seconds_of(program)):
                    return f'noticed by {program}'
            return self.survived()
        finally:
            file.write_text(text)

    def is_switched(self, site):
        return any(site.number in self.reached[p] for p in self.noticing(site))

    def run(self):
        equivalent = {line.rsplit(' || ', 1)[0] for line in EQUIVALENT.read_text().split('\n') if ' || ' in line}
        wanted = tuple(p.rstrip('/') for p in self.options.paths)
        drawn = sorted((s for s in self.sites if any(s.path == w or s.path.startswith(w + '/') for w in wanted)),
                       key=lambda s: digest(f'{self.options.seed} {s.key}'))
        print(f'{len(self.sites)} changes, {len(drawn)} of them in {" ".join(wanted)}', flush=True)
        # Some more than are wanted: not all of them compile.
        drawn = [s for s in drawn if s.key not in equivalent][:self.options.count * 5 // 4]
        if not self.build_switched(drawn):
            print('out of time while building; call again')
            return 2
        self.look_once()
        # What has never been tried comes first, and what has a switch before what must be built.
        tried = [s for s in drawn if self.found.get(s.key) is None]
        again = [s for s in drawn if (self.found.get(s.key) or '').startswith('survived') and self.found[s.key] != self.survived()]
        with concurrent.futures.ThreadPoolExecutor(self.options.jobs) as pool:
            def work(site):
                if self.left() > 20 and not self.is_enough(drawn, site):
                    self.found[site.key] = self.try_switched(site)
                    self.save()
            list(pool.map(work, [s for s in tried + again if self.is_switched(s)]))
        for site in [s for s in tried + again if not self.is_switched(s)]:
            if self.left() <= 30:
                break
            outcome = None if self.is_enough(drawn, site) else self.try_plain(site)
            if outcome is not None:
                self.found[site.key] = outcome
                self.save()
        return self.report(drawn)

    def is_enough(self, drawn, site):
        """Whether as many as are wanted stand before it in the order that was drawn, whatever comes of those still to try."""
        before = drawn[:drawn.index(site)]
        return sum(self.found.get(s.key) != 'refused by the compiler' for s in before) >= self.options.count

    def report(self, drawn):
        outcomes = [(s, self.found.get(s.key)) for s in drawn if self.found.get(s.key) != 'refused by the compiler'][:self.options.count]
        outcomes = [(s, outcome) for s, outcome in outcomes if outcome is not None]
        survivors = [s for s, outcome in outcomes if outcome.startswith('survived')]
        for site in sorted(survivors, key=lambda s: (s.path, s.line)):
            print('survived ' + site.says(self.texts[site.path]))
            print('    ' + site.key)
        if not outcomes:
            print('nothing tried')
            return 2
        print(f'{len(survivors)} of {len(outcomes)} survived ({100 * len(survivors) / len(outcomes):.1f} %), '
              f'{self.options.count - len(outcomes)} of {self.options.count} not tried yet')
        return 0 if len(survivors) <= MOST_SURVIVE * len(outcomes) else 1


def main(options):
    WORK.mkdir(parents=True, exist_ok=True)
    return Hunt(options).run()
