"""So many lines through `--lines`: each becomes a line as soon as it has come, and the memory does not grow with their number."""

import resource
import subprocess
import sys
import threading

program, count = sys.argv[1], int(sys.argv[2])
LOOKS = [
    '{"name":"EFFECT_ACID","radius":%d,"sigma":0.5}\n',
    '[{"name":"EFFECT_VIBRANCE","strength":%d},{"name":"EFFECT_OF_TOMORROW","list":[1,2,3]}]\n',
    '{"id":%d,"effects":[{"name":"EFFECT_ADJUSTER","smartBlur":{"lumaRadius":7},"vibrance":{"strength":5}}]}\n',
]
THIN = [
    '{"name":"EFFECT_ACID","radius":%d}\n',
    '[{"name":"EFFECT_VIBRANCE","strength":%d},{"list":[1,2,3],"name":"EFFECT_OF_TOMORROW"}]\n',
    '{"effects":[{"name":"EFFECT_ADJUSTER","smartBlur":{"lumaRadius":7},"vibrance":{"strength":5}}],"id":%d}\n',
]


def run(lines):
    process = subprocess.Popen([program, "thin", "--lines", "-"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def feed():
        for number in range(1, lines + 1):
            process.stdin.write(LOOKS[number % 3] % number)
        process.stdin.close()

    feeder = threading.Thread(target=feed)
    feeder.start()
    for number in range(1, lines + 1):
        expected = THIN[number % 3] % number
        line = process.stdout.readline()
        if line != expected:
            sys.exit(f"line {number}: expected {expected!r}, found {line!r}")
    if process.stdout.readline():
        sys.exit("there are more lines than came")
    feeder.join()
    if process.wait() != 0:
        sys.exit(f"the program ended with {process.returncode}")
    return resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss  # the largest of all so far, in KiB


# A line is answered before the next one comes.
with subprocess.Popen([program, "thin", "--lines", "-"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as one:
    for number in (3, 4, 5):
        one.stdin.write(LOOKS[number % 3] % number)
        one.stdin.flush()
        if one.stdout.readline() != THIN[number % 3] % number:
            sys.exit("a line was not answered before the next one")

few = run(1000)
many = run(count)
if many > few + 2048:
    sys.exit(f"{count} lines took {many} KiB, 1,000 lines took {few} KiB")
print(f"1,000 lines: {few} KiB; {count} lines: {many} KiB")
