#!/usr/bin/env python3
"""Puts small faults into the code, one at a time, and lists those that no test notices.

mutants.py COUNT SEED FOLDER: so many faults in the sources below the folder. They are the same ones for the same seed and
commit; changes that are not committed are left out. What it clones and builds stays in build/mutants for the next run.
Exit status: 0 if at least nine of ten faults are noticed, 1 if fewer are, 2 if it cannot be tried.
"""

import os
import pathlib
import random
import re
import resource
import signal
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
CLONE = ROOT / 'build/mutants/source'
BUILD = ROOT / 'build/mutants/build'
JOBS = '-j' + os.environ.get('JOBS', '2')
MEMORY = 4 << 30  # bytes of one process: a fault may make it ask for ever more


def swap(*pairs):
    return dict(pairs + tuple((new, old) for old, new in pairs)).get


# What is put in place of the group "old" of the pattern. clang-format puts blanks around operators, and around no others.
KINDS = {
    'relation': (r'(?<= )(?P<old>[<>=!]=|[<>])(?= |$)', swap(('<', '<='), ('>', '>='), ('==', '!='))),
    'logic': (r'(?<= )(?P<old>&&|\|\|)(?= |$)', swap(('&&', '||'))),
    'sum': (r'(?<= )(?P<old>[+-]=?)(?= |$)', swap(('+', '-'), ('+=', '-='))),
    'truth': (r'\b(?P<old>true|false)\b', swap(('true', 'false'))),
    'number': (r'(?<![\w.])(?P<old>\d+)(?![\w.])', lambda number: str(int(number) + 1)),
    'condition': (r'\bif \((?P<old>.+)\)(?: \{)?$', lambda condition: f'!({condition})'),
}
# This one is replaced by the next of those in the file that have the same type and ask the same object.
FORWARDER = (r'^(?P<type>.*\S) [\w:]+\((?P<with>.*)\) const \{ return (?P<asked>(?:[\w()]+(?:->|\.))*)(?P<old>\w+)'
             r'(?P<arguments>\([\w, ]*\))?; \}$')

# Left alone: comments and literals; then lines of the preprocessor, static assertions, and lines from a macro of Qt on.
TEXTS = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.DOTALL)
STATEMENTS = re.compile(r'^[ \t]*#(?:.*\\\n)*.*|\bstatic_assert\b[^;]*;|\bQ_[A-Z].*', re.MULTILINE)


def blank(match):
    return re.sub(r'[^\n]', ' ', match.group())


def next_questions(lines):
    """What a forwarder of the file may ask instead of each question: one of the same type, object and arguments."""
    groups = {}
    for line in lines:
        match = re.search(FORWARDER, line)
        if match:
            groups.setdefault(match.group('type', 'with', 'asked', 'arguments'), []).append(match['old'])
    return {question: group[index - 1]
            for group in groups.values() for index, question in enumerate(group) if len(set(group)) > 1}


def faults_in(file):
    """The faults of each line that can have any: as kind and new line, with the file and the number of the line."""
    text = (CLONE / file).read_text()
    lines = text.split('\n')
    code = STATEMENTS.sub(blank, TEXTS.sub(blank, text)).split('\n')
    kinds = KINDS | {'forwarder': (FORWARDER, next_questions(code).get)}
    for number, line in enumerate(lines):
        faults = []
        for kind, (pattern, changed) in kinds.items():
            for match in re.finditer(pattern, code[number].rstrip()):
                begin, end = match.span('old')
                new = changed(line[begin:end])
                if new and new != line[begin:end]:
                    faults.append((kind, line[:begin] + new + line[end:]))
        if faults:
            yield file, number, faults


def git(*arguments):
    """In the clone, and never in the project around it."""
    return subprocess.run(['git', '--git-dir=.git', '--work-tree=.', *arguments], cwd=CLONE, check=True,
                          stdout=subprocess.PIPE, text=True).stdout


def succeeds(*command, seconds=None):
    """Whether a command ends well, and in time. Otherwise nothing that it started is left behind."""
    process = subprocess.Popen(
        command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
        preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY)))
    try:
        return process.wait(seconds) == 0
    except BaseException as reason:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        if not isinstance(reason, subprocess.TimeoutExpired):
            raise
        return False


def builds(*targets):
    return succeeds('cmake', '--build', BUILD, JOBS, '--target', *targets)


def passes(*selection, seconds=None):
    return succeeds('ctest', '--test-dir', BUILD, JOBS, '--label-exclude', '^slow$', '--stop-on-failure', *selection,
                    seconds=seconds)


def prepare():
    """Clones and builds the commit. Returns how long the tests may take, or None if they fail without a fault."""
    CLONE.mkdir(parents=True, exist_ok=True)
    git('init', '--quiet')
    git('fetch', '--quiet', ROOT, 'HEAD')
    git('checkout', '--quiet', '--force', '--detach', 'FETCH_HEAD')
    if not succeeds('cmake', '-S', CLONE, '-B', BUILD, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Release',
                    '-DCMAKE_CXX_FLAGS_RELEASE=-O0 -DNDEBUG', '-DCMAKE_LINK_DEPENDS_NO_SHARED=ON') or not builds('all'):
        return None
    start = time.monotonic()
    return 20 + 3 * (time.monotonic() - start) if passes() else None


def is_noticed(file, seconds):
    """None if it does not compile. First the tests of the same folder are asked, then all others."""
    near = [test.stem for part in pathlib.PurePath(file).parts for test in (CLONE / 'tests' / part).glob('*Test.cpp')]
    pattern = f'^({"|".join(near)})([.]|$)'
    for targets, selection in (near, '--tests-regex'), (['all'], '--exclude-regex'):
        if targets and not builds(*targets):
            return None
        if targets and not passes(selection, pattern, seconds=seconds):
            return True
    return False


def main(count, seed, folder):
    seconds = prepare()
    places = [place for file in git('ls-files', f'{folder}/*.cpp', f'{folder}/*.h').split() for place in faults_in(file)]
    if not seconds or not places:
        print('mutants: the commit does not build and pass its tests, or has no sources there', file=sys.stderr)
        return 2
    chance = random.Random(seed)
    chance.shuffle(places)
    tried = noticed = 0
    for file, number, faults in places:
        if tried == count:
            break
        kind, line = chance.choice(faults)
        source = CLONE / file
        text = source.read_text()
        lines = text.split('\n')
        source.write_text('\n'.join(lines[:number] + [line] + lines[number + 1:]))
        answer = is_noticed(file, seconds)
        source.write_text(text)
        tried += answer is not None
        noticed += answer is True
        if answer is False:
            print(f'{file}:{number + 1} [{kind}] {line.strip()}', flush=True)
    print(f'mutants: {noticed} of {tried} noticed ({100 * noticed // max(tried, 1)} %), seed {seed}')
    return 0 if 10 * noticed >= 9 * tried else 1


if __name__ == '__main__':
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(int(sys.argv[1]), int(sys.argv[2]), sys.argv[3].rstrip('/')))
