// SPDX-License-Identifier: GPL-2.0-or-later
// How trouble reaches the user: plain boxes, the offer to look at what can't be changed, scrollable reports
// of expected Python exceptions with the log lines that led up to them, and the log functions that the helper
// script calls.
#include "bridge/PythonApi.h"

#include "engine/YumIO.h"

#include "services/YumIOCapturers.h"
#include "services/YumIODialogs.h"

#include <QMutexLocker>

void YumIO::error(QString const& text)
{
    lastReportText = text;
    log(Log::Error, 0, text);
    if (jobs.dialogs) {
        jobs.dialogs->critical(tr("VEM Yum Error"), text, QString(), QString(), QString(), 0, -1);
    }
}

void YumIO::warning(QString const& text)
{
    lastReportText = text;
    log(Log::Warning, 0, text);
    if (jobs.dialogs) {
        jobs.dialogs->warning(tr("VEM Yum Warning"), text, QString(), QString(), QString(), 0, -1);
    }
}

void YumIO::error(char const* message)
{
    error(QString::fromUtf8(message));
}

void YumIO::warning(char const* message)
{
    warning(QString::fromUtf8(message));
}

bool YumIO::offerLooking()
{
    QString const reason = script.told("whyOnlyLooking");
    constexpr int look = 0;
    constexpr int quit = 1;
    return reason.isEmpty() || !jobs.dialogs ||
           jobs.dialogs->warning(
               tr("VEM Looking Only"), reason, tr("&Look"), tr("&Quit"), QString(), look, quit) == look;
}

QString YumIO::whyNoChange()
{
    return script.told("whyNoChange");
}

QByteArray YumIO::lastReport() const
{
    return lastReportText.trimmed().toUtf8();
}

void YumIO::pyExceptExpect(PyObject* type)
{
    {
        QMutexLocker const locker(&logEntries);
        logMark = logEntries.size();
    }
    Python::pyExceptExpect(type);
}

void YumIO::pyExceptClear()
{
    logMark = -1;
    Python::pyExceptClear();
}

void YumIO::exceptionExpected() {}

void YumIO::pythonException(QString const& text)
{
    reportException(QString(), text);
}

void YumIO::pythonExceptionV(QString const& text)
{
    PyRef const value = pyExceptValuef();
    QString words;
    if (value) {
        words = pyString(value.get());
        // Also an exception that says nothing has its line.
        if (words.isNull()) {
            words = QLatin1String("");
        }
    }
    reportException(words, text);
}

void YumIO::reportException(QString const& value, QString const& text)
{
    if (stop.stopped()) {
        // The user has wanted that, and need not be told.
        log(Log::Action, 0, tr("Stopped"));
        return;
    }
    if (jobs.capturers) {
        // What has just been written belongs to this report, and may not have been read yet.
        jobs.capturers->drain();
    }
    qsizetype start = logMark;
    if (start == -1) {
        QMutexLocker const locker(&logEntries);
        start = logEntries.size();
    }
    if (!value.isNull()) {
        log(Log::Error, 0, value);
    }
    log(Log::Error, 0, text);

    QStringList collected;
    {
        QMutexLocker const locker(&logEntries);
        for (qsizetype at = start; at < logEntries.size(); ++at) {
            Log::Entry const& entry = logEntries.at(at);
            if (entry.kind == Log::Error && entry.level < 3) {
                collected.append(entry.text);
            }
        }
    }
    lastReportText = collected.join(QLatin1Char('\n'));
    if (jobs.dialogs) {
        jobs.dialogs->scrollable(tr("VEM Yum Error"), lastReportText);
    }
}

PyObject* YumIO::stdoutWrite(PyObject*, PyObject* args)
{
    char const* text = nullptr;
    if (!PyArg_ParseTuple(args, "s", &text)) {
        return nullptr;
    }
    writeStdout(QString::fromUtf8(text));
    Py_RETURN_NONE;
}

PyObject* YumIO::stderrWrite(PyObject*, PyObject* args)
{
    char const* text = nullptr;
    if (!PyArg_ParseTuple(args, "s", &text)) {
        return nullptr;
    }
    logEntries.addStream(QString::fromUtf8(text), stderrKind, stderrLevel, stderrBuffer);
    Py_RETURN_NONE;
}

PyObject* YumIO::log(PyObject*, PyObject* args)
{
    long level = 0;
    char const* text = nullptr;
    if (!PyArg_ParseTuple(args, "ls", &level, &text)) {
        return nullptr;
    }
    QString const line = QString::fromUtf8(text);
    log(Log::Info, static_cast<unsigned int>(level), line);
    QLatin1String const solverPrefix("TSINFO: ");
    if (line.startsWith(solverPrefix)) {
        dsTsInfo(line.mid(solverPrefix.size()));
    }
    Py_RETURN_NONE;
}

PyObject* YumIO::warninglog(PyObject*, PyObject* args)
{
    return logAs(Log::Warning, args);
}

PyObject* YumIO::errorlog(PyObject*, PyObject* args)
{
    return logAs(Log::Error, args);
}

PyObject* YumIO::logAs(Log::Kind kind, PyObject* args)
{
    long level = 0;
    char const* text = nullptr;
    if (!PyArg_ParseTuple(args, "ls", &level, &text)) {
        return nullptr;
    }
    log(kind, static_cast<unsigned int>(level), QString::fromUtf8(text));
    Py_RETURN_NONE;
}
