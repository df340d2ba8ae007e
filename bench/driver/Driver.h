// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bench/driver/Pinger.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>

class QDialog;
class QMainWindow;
class QTableView;

/// Uses the program's own window as its user does, and measures each step up to the painted table and the
/// empty event queue. It is loaded into the program, which knows nothing of it, and finds everything by the
/// words on the screen. Child of the application; GUI thread.
///
/// The steps are a JSON array in the file that VEM_BENCH_STEPS names. What was measured goes to
/// VEM_BENCH_OUTPUT, one JSON object a line, the start of the program first. Then the program is quit. The
/// first thing that goes wrong ends the process with status 3, and the last line tells it as "error".
class Driver final : public QObject
{
    Q_OBJECT

public:
    Driver(QString const& stepsFile, QString const& outputFile, QObject* parent);

private:
    /// Called whenever the event loop is about to wait: is there something that was waited for?
    void look();
    void run();
    void answer(QDialog* dialog);
    void measure(QJsonObject const& step);
    void perform(QJsonObject const& step);
    /// Serves events until none is left and the X server has done what it was told.
    static void settle();
    void write(QJsonObject line);
    [[noreturn]] void fail(QString const& text);

    // Steps.
    void press(QString const& text);
    void choose(QString const& combo, QString const& item);
    void check(QString const& text, bool on);
    void type(QString const& text);
    /// By the keyboard, up to the table that follows.
    void writeByKeys(QString const& text);
    /// All rows or none, or the first so many.
    void select(QJsonValue const& what);
    /// Has the row described, and closes the description as soon as it is painted.
    void describe(int row);
    /// Presses a button, and some time after the question has been answered stops what that began; measured
    /// from there on.
    void stop(QString const& text);
    void clickHeader(int column);
    void trigger(QString const& text);
    [[nodiscard]] QJsonArray walkedWidths() const;

    QJsonArray steps;
    QFile output;
    Pinger pinger;
    QElapsedTimer timer;
    QMainWindow* window = nullptr;
    QTableView* table = nullptr;
    bool begun = false;
    bool answering = false;
    double askedAfter = -1; ///< milliseconds of the present step until its question was on the screen
};
