// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PosixRegex.h"

PosixRegex::~PosixRegex()
{
    if (regCompResult == 0) {
        regfree(&regex);
    }
}

bool PosixRegex::compile(QByteArray const& pattern)
{
    if (regCompResult == 0) {
        regfree(&regex);
    }
    regCompResult = regcomp(&regex, pattern.constData(), REG_EXTENDED | REG_NOSUB);
    return regCompResult == 0;
}

bool PosixRegex::matches(QByteArray const& text) const
{
    return regCompResult != 0 || regexec(&regex, text.constData(), 0, nullptr, 0) == 0;
}
