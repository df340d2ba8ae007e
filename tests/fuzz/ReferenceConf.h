// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QList>

/// What one configuration file means and what a write has to make of it, found out in the plainest way: over
/// the whole text in memory, with no thought of speed. A second opinion to hold the reader and writer
/// against.
class ReferenceConf
{
public:
    struct Section
    {
        QByteArray id;
        QByteArray written;  ///< as it is to stand in the file but for the form, without the blank line
        QList<bool> enabled; ///< what its `enabled` lines say, in their order
    };

    enum Kind
    {
        MainFile,
        RepoFile
    };

    ReferenceConf(QByteArray const& text, Kind kind);

    bool isWellFormed = true; ///< every section head has its closing bracket
    bool hasMark = false;     ///< a byte order mark stands first
    bool hasReturns = false;  ///< each line that has an end ends in CR LF
    QByteArray mainOptions;   ///< of a main file, as it is to stand there but for the form
    QByteArrayList reposdirs{"/etc/yum/repos.d", "/etc/yum.repos.d"};
    bool mainEnabled = true;
    QList<Section> sections; ///< up to the first head that isn't well formed

    /// `text` with the mark and the ends that this file has.
    [[nodiscard]] QByteArray formed(QByteArray const& text) const;

private:
    void readMainOption(QByteArray const& line);
    void readSections(QByteArrayList const& lines);
};
