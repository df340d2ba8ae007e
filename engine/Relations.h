// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <vector>

class YumIO;

/// What the helper script tells of the packages around one: who needs it, what it needs, and so on. Each
/// answer is read by a job of the engine. It owns the packages that its answers lead to, until `forget`.
/// Owned by whoever shows them; GUI thread. The engine has to outlive it.
class Relations final
{
    Q_DECLARE_TR_FUNCTIONS(Relations)

public:
    enum class Kind
    {
        RequiredBy,
        RecommendedBy,
        SatisfiedBy, ///< what satisfies each of the package's requirements
        WhyInstalled,
        Advisories,
        Versions
    };

    /// A part of a line: a text, or the name of a package that can be described, too.
    struct Piece
    {
        QString text;
        Package::Entry const* entry = nullptr; ///< null for a mere text
    };
    using Line = QList<Piece>;

    struct Answer
    {
        bool told = false; ///< false after a report
        QList<Line> lines;
        qsizetype count = 0; ///< of all lines there are
    };

    explicit Relations(YumIO* engine);
    ~Relations();
    Relations(Relations const&) = delete;
    Relations& operator=(Relations const&) = delete;

    /// Whether the script tells anything of it about the entry: scripts for older releases don't.
    [[nodiscard]] bool offers(Kind kind, Package::Entry const& entry) const;

    /// Job: at most `most` lines. Nothing where another job runs.
    Answer ask(Kind kind, Package::Entry const& entry, qsizetype most);
    /// Job: all lines as plain text.
    QString text(Kind kind, Package::Entry const& entry);

    /// Frees the packages of all answers.
    void forget();

private:
    bool read(Kind kind, Package::Entry const& entry, qsizetype most, bool withEntries, Answer& answer);
    void takeLines(PyObject* lines, bool withEntries, Answer& answer);
    Piece takePiece(PyObject* piece, bool withEntries);
    Package::Entry* entryOf(PyObject* package, PyObject* state, PyObject* installed);
    Answer run(Kind kind, Package::Entry const& entry, qsizetype most, bool withEntries);

    YumIO* yumIO;
    std::vector<Package::Entry*> entries; ///< owned, with their chains
};
