# ./check lint: one step for each linter. Sourced by check.
# shellcheck shell=bash

readonly shell_form=(-i 4 -ci)

tidy() {
    local sources
    mapfile -t sources < <(git ls-files 'ustring/*.cpp' 'lib/*.cpp' 'libcommon/*.cpp' 'qtsingleapplication/*.cpp' 'launcher/*.cpp')
    printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P 2 clang-tidy -quiet -p build/dev --extra-arg=-std=c++17
}

check_cpp() {
    # Signatures are fixed, by value too; and the types of forwarded functions are not followed.
    git ls-files -z 'ustring/*.cpp' 'lib/*.cpp' 'libcommon/*.cpp' 'qtsingleapplication/*.cpp' 'launcher/*.cpp' |
        xargs -0 cppcheck --quiet --error-exitcode=1 --library=qt --std=c++17 -I . -j 2 \
            --suppress=passedByValue --suppress=CastIntegerToAddressAtReturn:launcher/libarchive.cpp \
            --enable=warning,performance,portability
}

# The files whose first line, or whose name, says that they are for this interpreter.
programs_for() { # INTERPRETER PATTERN
    {
        git ls-files "$2"
        git grep -lE --max-count=1 "^#!.*[/ ]$1" -- ':!*.md' || true
    } | sort -u
}

lint_shell() {
    local files
    mapfile -t files < <(programs_for '(ba)?sh' '*.sh')
    shellcheck "${files[@]}"
    # Tabs, blanks and `case` are not for people to argue about.
    shfmt "${shell_form[@]}" -d "${files[@]}"
}

lint_python() {
    local files
    mapfile -t files < <(programs_for python3 '*.py')
    flake8 --max-line-length 100 "${files[@]}"
}

check_lint() {
    build dev -DQUILLMERE_BENCH=ON -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
    step "clang-format" sh -c 'git ls-files -z "*.cpp" "*.h" | xargs -0 clang-format --dry-run --Werror'
    step "shell" lint_shell
    step "Python" lint_python
    step "cppcheck" check_cpp
    step "clang-tidy" tidy
}
