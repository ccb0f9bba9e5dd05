#!/usr/bin/python3
# SPDX-License-Identifier: BSD-3-Clause
"""summary.py JUNIT-FILE...: counts the test functions in ctest's results, and fails if one has failed or none has run.

Where tests-again.xml stands beside a file, a program counts with what is in there: it was run a second time, and is named.

A program of ours says at its end how many functions it ran; one that says nothing, or that died before it could, counts
as one."""

import os
import re
import sys
import xml.etree.ElementTree


def counts_of(case):
    """(passed, failed, skipped) of one program."""
    output = case.findtext('system-out') or ''
    passed = failed = skipped = 0
    for match in re.finditer(r'^Totals: (\d+) passed, (\d+) failed, (\d+) skipped', output, re.MULTILINE):
        passed += int(match[1])
        failed += int(match[2])
        skipped += int(match[3])
    for match in re.finditer(r'^Ran (\d+) tests? in .*\n\n(?:OK|FAILED)(?: \((.*)\))?$', output, re.MULTILINE):
        kinds = {kind.strip(): int(count) for kind, count in re.findall(r'([a-z ]+)=(\d+)', match[2] or '')}
        bad = sum(kinds.get(kind, 0) for kind in ('failures', 'errors', 'unexpected successes'))
        left_out = sum(count for kind, count in kinds.items() if kind == 'skipped')
        passed += max(0, int(match[1]) - bad - left_out)
        failed += bad
        skipped += left_out

    status = case.get('status')
    if status == 'run':
        return (passed, failed, skipped) if passed or failed or skipped else (1, 0, 0)
    reason = case.find('skipped')
    if status == 'notrun' and reason is not None and 'SKIP_' in reason.get('message', ''):
        return passed, failed, skipped or 1
    return passed, failed or 1, skipped


def cases_of(path):
    """The programs in a file of results, by their names."""
    return {case.get('name'): case for case in xml.etree.ElementTree.parse(path).getroot().iter('testcase')}


def main(paths):
    totals = [0, 0, 0]
    unsteady = []
    for path in paths:
        second = os.path.join(os.path.dirname(path), 'tests-again.xml')
        try:
            cases = cases_of(path)
            repeated = cases_of(second) if os.path.exists(second) else {}
        except (OSError, xml.etree.ElementTree.ParseError) as error:
            print('No results: %s' % error, file=sys.stderr)
            totals[1] += 1
            continue
        for name, case in cases.items():
            counts = counts_of(case)
            if counts[1] and name in repeated:
                counts = counts_of(repeated[name])
                if not counts[1]:
                    unsteady.append(name)
            totals = [total + count for total, count in zip(totals, counts)]
    passed, failed, skipped = totals
    if unsteady:
        print('Passed only the second time, alone: ' + ', '.join(unsteady))
    print('%d passed, %d failed%s' % (passed, failed, ', %d skipped' % skipped if skipped else ''))
    return 1 if failed or not passed else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
