#!/usr/bin/env bash
# Builds the library and runs the ovi18n tool on the sample installation in the build tree: the
# locale report, then one translated message in three locales.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/lib/build_tree.sh

scripts/install-deps.sh
# Shares build/ with test.sh, so it leaves the test and benchmark switches alone and states only
# what the tool needs: a plain build with the tool in it.
configure_tree build -DOVI18N_BUILD_TOOLS=ON -DOVI18N_SANITIZE= -DOVI18N_FUZZ=OFF
cmake --build build --target ovi18n_tool ovi18n_sample_installation -j"$jobs"
build/bin/x64linux/ovi18n locale "$@"
# A JSON report stays one document.
if [[ " $* " == *" --json "* ]]; then
    exit 0
fi
# The French translation of this catalog is missing on purpose: French falls back to English.
for locale in de_DE ja_JP fr_FR; do
    echo
    build/bin/x64linux/ovi18n message viewer:dialogs:print:Printing 3 --locale "$locale"
done
