// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The package files that the user has opened, by paths and addresses, in the order in which they were
/// opened. Each collection makes rows of them, of the repository `repository`. The engine owns the only one;
/// it is written on the GUI thread between jobs, and by the job in progress.
class PackageFiles
{
public:
    /// What stands for the repository of the rows.
    static constexpr QLatin1String repository{"files"};

    /// Behind those that are open already; one that is open already is the latest from here on.
    void open(QStringList const& words);
    [[nodiscard]] QStringList words() const;
    [[nodiscard]] bool isEmpty() const { return files.isEmpty(); }

    /// The file of this word has become the row of the package of that name.
    void settle(QString const& word, QString const& name);
    void close(QString const& word);
    /// Those that no row has been shown of yet: whoever opened them has stopped that.
    void closeFresh();
    /// The files of the packages of these names, since they are installed by now.
    void closeNamed(QStringList const& names);

    /// The packages that have become rows since they were opened, each told once. They are to be marked.
    [[nodiscard]] QStringList takeFresh();

private:
    struct File
    {
        QString word; ///< an absolute path or an address
        QString name; ///< of the package, once it is known
        bool fresh = true;
    };

    QList<File> files;
};
