#!/usr/bin/python3
# SPDX-License-Identifier: BSD-3-Clause
"""summary.py JUNIT-FILE...: counts the test functions in ctest's results, and fails if one has failed or none has run.

A program of ours says at its end how many functions it ran; one that says nothing, or that died before it could, counts
as one."""

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


def main(paths):
    totals = [0, 0, 0]
    for path in paths:
        try:
            cases = xml.etree.ElementTree.parse(path).getroot().iter('testcase')
        except (OSError, xml.etree.ElementTree.ParseError) as error:
            print('No results: %s' % error, file=sys.stderr)
            totals[1] += 1
            continue
        for case in cases:
            totals = [total + count for total, count in zip(totals, counts_of(case))]
    passed, failed, skipped = totals
    print('%d passed, %d failed%s' % (passed, failed, ', %d skipped' % skipped if skipped else ''))
    return 1 if failed or not passed else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
