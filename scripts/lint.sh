#!/usr/bin/env bash
# The formatter and the linter over all sources, by the project's own configuration. Run by ./check --lint.
set -eu
cd "$(dirname "$0")/.."
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
git ls-files '*.cpp' | xargs -P "$(nproc)" -n 4 clang-tidy -p build/release --quiet
