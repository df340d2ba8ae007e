// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Parts and coding of addresses. No state; any thread.
///
/// Texts are those of the configuration, where a character is a byte: a coded sequence of several bytes
/// becomes as many characters.
namespace URL
{

/// The host of the first address in the text, as it stands: a port, or a user and password, stay part of it.
/// Null when the first colon isn't followed by two slashes.
[[nodiscard]] QString getHost(QString const& url);

/// Each escape, "%" and two hexadecimal digits of either case, becomes its character, which is not looked at
/// again. Whatever else stands behind a "%" stays.
[[nodiscard]] QString percentDecode(QString const& text);

/// Escapes, in lower case, the characters that mean something in an address.
[[nodiscard]] QString percentEncode(QString const& text);

} // namespace URL
