// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PosixRegex.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstring>

namespace
{

bool isAscii(QByteArray const& text)
{
    // Without an early end, so that the compiler takes many bytes at a time.
    unsigned char all = 0;
    for (char const byte : text) {
        all |= static_cast<unsigned char>(byte);
    }
    return all < 0x80U;
}

bool areOfOneKind(char one, char other)
{
    auto const within = [&](char first, char last) {
        return std::min(one, other) >= first && std::max(one, other) <= last;
    };
    return within('a', 'z') || within('A', 'Z') || within('0', '9');
}

/// Whether what stands there, in a pair of brackets whose first character is `open`, is a locale's own
/// affair: what lies between two characters, except among letters of one case and among digits, and what
/// counts as equal to one.
bool isOfLocale(char const* at, char const* open)
{
    if (*at == '[') {
        return at[1] == '.' || at[1] == '=';
    }
    return *at == '-' && at != open && at[1] != ']' && !areOfOneKind(at[-1], at[1]);
}

/// Whether an expression that compiles means the same for ASCII in any locale.
bool isFreeOfLocale(QByteArray const& pattern)
{
    char const* const end = pattern.constData() + pattern.size();
    char const* open = nullptr; // the first character in the present pair of brackets
    for (char const* at = pattern.constData(); at < end; ++at) {
        if (!open) {
            if (*at == '\\') {
                ++at;
            } else if (*at == '[') {
                open = at[1] == '^' ? at + 2 : at + 1;
                at = open - 1;
            }
        } else if (isOfLocale(at, open)) {
            return false;
        } else if (*at == '[' && at[1] == ':') {
            at = std::strstr(at, ":]");
            if (!at) {
                return false;
            }
            ++at;
        } else if (*at == ']' && at != open) {
            open = nullptr;
        }
    }
    return isAscii(pattern);
}

} // namespace

void PosixRegex::Free::operator()(regex_t* regex) const
{
    regfree(regex);
    delete regex;
}

std::optional<PosixRegex::Fault> PosixRegex::fault(QString const& pattern)
{
    auto const resultOf = [&pattern](qsizetype length) {
        regex_t made{};
        int const result =
            regcomp(&made, pattern.left(length).toUtf8().constData(), REG_EXTENDED | REG_NOSUB);
        QString words;
        if (result == 0) {
            regfree(&made);
        } else {
            std::array<char, 200> text{};
            regerror(result, &made, text.data(), text.size());
            words = QString::fromLocal8Bit(text.data());
        }
        return words;
    };
    QString const words = resultOf(pattern.size());
    if (words.isEmpty()) {
        return std::nullopt;
    }
    constexpr qsizetype longestSearched = 300;
    if (pattern.size() > longestSearched) {
        return Fault{words, std::nullopt};
    }
    // regcomp(3) doesn't tell where. As long as the beginning of a pattern compiles, nothing is wrong with
    // it.
    qsizetype good = pattern.size() - 1;
    while (good > 0 && !resultOf(good).isEmpty()) {
        --good;
    }
    return Fault{words, static_cast<int>(good)};
}

bool PosixRegex::compile(QByteArray const& pattern, Qt::CaseSensitivity newSensitivity)
{
    sensitivity = newSensitivity;
    // regcomp(3) sees a C string, and so has to look for letters no further.
    QByteArray const seen(pattern.constData());
    regex = compiled(seen);
    forBytes = regex && isFreeOfLocale(seen) ? compiledForBytes(seen) : Compiled();
    needed = neededLetters(seen);
    if (sensitivity == Qt::CaseInsensitive && !isAscii(needed)) {
        // It is for the locale to tell which letters are the same but for their case.
        needed.clear();
    }
    onlyNeeded = needed == seen;
    return bool(regex);
}

PosixRegex::Compiled PosixRegex::compiled(QByteArray const& pattern) const
{
    auto made = std::make_unique<regex_t>();
    int const anyCase = sensitivity == Qt::CaseInsensitive ? REG_ICASE : 0;
    bool const compiles = regcomp(made.get(), pattern.constData(), REG_EXTENDED | REG_NOSUB | anyCase) == 0;
    return Compiled(compiles ? made.release() : nullptr);
}

// regexec(3) is up to ten times as fast where each byte is a character.
PosixRegex::Compiled PosixRegex::compiledForBytes(QByteArray const& pattern) const
{
    static locale_t const bytes = newlocale(LC_ALL_MASK, "C", nullptr);
    if (!bytes) {
        return {};
    }
    locale_t const present = uselocale(bytes);
    Compiled made = compiled(pattern);
    uselocale(present);
    return made;
}

bool PosixRegex::matches(QByteArray const& text) const
{
    if (!regex) {
        return true;
    }
    bool const ascii = isAscii(text);
    // Most texts lack the letters, and regexec(3) takes far longer even for a short one.
    if (!needed.isEmpty() && lacksLetters(text, ascii)) {
        return false;
    }
    if (onlyNeeded && (sensitivity == Qt::CaseSensitive || ascii)) {
        return true;
    }
    regex_t const* const chosen = forBytes && ascii ? forBytes.get() : regex.get();
    return regexec(chosen, text.constData(), 0, nullptr, 0) == 0;
}

bool PosixRegex::lacksLetters(QByteArray const& text, bool ascii) const
{
    if (sensitivity == Qt::CaseSensitive) {
        return !std::strstr(text.constData(), needed.constData());
    }
    return ascii && !strcasestr(text.constData(), needed.constData());
}

// The plain letters at the start of an expression without alternatives. A repetition behind them makes the
// last one optional, which in UTF-8 may be several bytes; what else comes behind takes nothing back.
QByteArray PosixRegex::neededLetters(QByteArray const& pattern)
{
    if (pattern.contains('|')) {
        return {};
    }
    qsizetype const start = pattern.startsWith('^') ? 1 : 0;
    std::size_t const plain = std::strcspn(pattern.constData() + start, "\\^$.[]()*+?{}");
    qsizetype end = start + static_cast<qsizetype>(plain);
    if (end > start && end < pattern.size() && std::strchr("*+?{", pattern.at(end))) {
        do {
            --end;
        } while (end > start && (static_cast<unsigned char>(pattern.at(end)) & 0xc0U) == 0x80U);
    }
    return pattern.mid(start, end - start);
}
