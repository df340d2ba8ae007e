// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QRandomGenerator>

/// Makes up configuration files, with what a read and a write have to make of them. Nothing here parses: the
/// outcome comes from knowing what was put in.
class GeneratedConf
{
public:
    explicit GeneratedConf(quint32 seed);

    struct File
    {
        QByteArray text;    ///< as a user might have left it
        QByteArray written; ///< as it is to stand after a write
        int sections = 0;
    };

    /// A main file with the given `reposdir`, now and then with sections of its own.
    File mainFile(QByteArray const& reposdir);
    /// A repository file of up to five sections, also of none.
    File repoFile();

private:
    int below(int bound) { return int(random.bounded(bound)); }
    bool maybe(int inHowMany) { return below(inHowMany) == 0; }
    /// Any bytes but line feeds.
    QByteArray bytes(int most);
    QByteArray blanks() { return QByteArray("    \t \t").mid(below(7), below(4)); }
    /// Continuation lines, each with the line feed before it; as a rule none.
    QByteArray continuations();
    /// A logical line that sets nothing.
    QByteArray plainLine();
    void addSections(File& file, int count);
    void addSection(File& file);

    QRandomGenerator random;
    int ids = 0; ///< sections made so far, which keeps identifiers apart
};
