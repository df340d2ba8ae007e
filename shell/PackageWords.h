// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QMimeData;

/// What names a package file from elsewhere: a path, or an address by which files are fetched safely. Any
/// thread.
namespace PackageWords
{

/// The absolute path or the address; empty for what names neither a readable file that ends in ".rpm" nor an
/// https address.
[[nodiscard]] QString understood(QString const& word);
/// Those among what is dragged.
[[nodiscard]] QStringList dragged(QMimeData const& data);

} // namespace PackageWords
