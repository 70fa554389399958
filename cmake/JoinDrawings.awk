# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# Writes C++ that qmlcachegen has made, one file after the other, with the variables that a function declares
# first in the order of their lines: qmlcachegen of Qt 6.4 declares them in the order of their addresses, which
# differ from run to run.

function flush(    i, j, line) {
    for (i = 2; i <= count; ++i) {
        line = declared[i]
        for (j = i - 1; j > 0 && declared[j] > line; --j)
            declared[j + 1] = declared[j]
        declared[j + 1] = line
    }
    for (i = 1; i <= count; ++i)
        print declared[i]
    count = 0
}

/^[A-Za-z_].* \*?r[0-9]+_[0-9]+;$/ && !/=/ && !/^(return|goto) / {
    declared[++count] = $0
    next
}
{
    flush()
    print
}
END { flush() }
