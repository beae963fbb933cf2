#!/usr/bin/env bash
# Scripts that install or build say how long it may take, and then show from time to time that they are at work, also in a log.
# The programs that they start are stand-ins here, which take their time.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$WORK_DIR/progress
rm -rf "$work"
mkdir -p "$work/bin" "$work/project/build/release/examples"
cp -r "$SOURCE_DIR/scripts" "$work/project"

# All programs of the machine but the one that is to be installed.
find /bin/ /usr/bin/ /usr/local/bin/ -maxdepth 1 -not -type d -exec ln -sf -t "$work/bin" {} + 2>/dev/null
rm -f "$work/bin"/{clang-format-14,apt-get,cmake,sudo}
export PATH=$work/bin

# stand_in NAME: a program with the script that is read.
stand_in() {
    { echo '#!/bin/bash'; cat; } >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}

# As root or not, the program is to be "installed" without rights.
stand_in sudo <<<'exec "$@"'
stand_in apt-get <<END
case "\$*" in
*--simulate*) seq -f 'Inst package-%g' 90 ;;
install*)
    echo "Get:1 first"; echo "Get:2 second"; sleep 6; echo "Unpacking third"; echo "Setting up fourth"
    ln -s /bin/true "$work/bin/clang-format-14" ;;
esac
END
stand_in cmake <<'END'
case "$*" in
--version) echo "cmake version 3.25.1" ;;
--build*) echo "[1/4] first"; echo "[2/4] second"; sleep 6; echo "a warning"; echo "[3/4] third"; echo "[4/4] fourth" ;;
esac
END
printf '#!/bin/bash\necho the demo runs\n' >"$work/project/build/release/examples/ombrel-demo"
chmod +x "$work/project/build/release/examples/ombrel-demo"

installed=$("$work/project/scripts/setup" format | sed -n '/^setup: 90/,$p')
expect "output of setup" "setup: 90 packages with what they need, about 2 minutes
  Get:1 first
  Unpacking third
setup: done" "$installed"

built=$("$work/project/scripts/demo" | sed -n '/^demo/,$p' | sed 's/about [0-9]* minutes\?/about N minutes/')
expect "output of demo" "demo: building into build/release, about N minutes
[1/4] first
a warning
[3/4] third

the demo runs" "$built"
