// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// A folder of programs that note how they were started: each argument on a line of the file "started".
class Launches
{
public:
    /// Makes a program of this name, which runs `more` after its note.
    void add(QString const& name, QByteArray const& more = QByteArray()) const
    {
        QFile program(path(name));
        QVERIFY(program.open(QIODevice::WriteOnly));
        // Moved into place, so that whoever finds the note finds all of it.
        program.write(
            "#!/bin/sh\ncd '" + QFile::encodeName(folder.path()) +
            "' || exit 1\nprintf '%s\\n' \"$0\" \"$@\" > note && mv note started\n" + more + "\n");
        program.close();
        QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    [[nodiscard]] QString path(QString const& name) const { return folder.filePath(name); }

    /// How the program was started that was started last; empty until then.
    [[nodiscard]] QByteArrayList started() const
    {
        QFile note(path(QStringLiteral("started")));
        if (!note.open(QIODevice::ReadOnly))
            return {};
        QByteArrayList words = note.readAll().split('\n');
        words.removeLast();
        return words;
    }

    void forget() const { QFile::remove(path(QStringLiteral("started"))); }

private:
    QTemporaryDir folder;
};
