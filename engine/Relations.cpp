// SPDX-License-Identifier: GPL-2.0-or-later
#include "bridge/PythonApi.h"

#include "engine/Relations.h"

#include "engine/YumIO.h"

#include <limits>
#include <utility>

namespace
{

constexpr char const* method = "relations";

/// How the script calls them.
char const* scriptName(Relations::Kind kind)
{
    switch (kind) {
    case Relations::Kind::RequiredBy:
        return "requiredBy";
    case Relations::Kind::RecommendedBy:
        return "recommendedBy";
    case Relations::Kind::SatisfiedBy:
        return "satisfiedBy";
    case Relations::Kind::WhyInstalled:
        return "why";
    case Relations::Kind::Advisories:
        return "advisories";
    case Relations::Kind::Versions:
        return "versions";
    }
    return "";
}

} // namespace

Relations::Relations(YumIO* engine)
    : yumIO(engine)
{
}

Relations::~Relations()
{
    forget();
}

void Relations::forget()
{
    if (!entries.empty()) {
        Python::PyGILStateWrapper const lock(true);
        for (Package::Entry* const entry : std::exchange(entries, {})) {
            delete entry;
        }
    }
}

bool Relations::offers(Kind kind, Package::Entry const& entry) const
{
    return entry.kind != Package::Group &&
           (kind != Kind::WhyInstalled || entry.state != Package::Available) && yumIO->script.has(method);
}

Relations::Answer Relations::ask(Kind kind, Package::Entry const& entry, qsizetype most)
{
    return run(kind, entry, most, true);
}

QString Relations::text(Kind kind, Package::Entry const& entry)
{
    QString all;
    for (Line const& line : run(kind, entry, std::numeric_limits<int>::max(), false).lines) {
        if (!all.isEmpty()) {
            all += u'\n';
        }
        for (Piece const& piece : line) {
            all += piece.text;
        }
    }
    return all;
}

Relations::Answer Relations::run(Kind kind, Package::Entry const& entry, qsizetype most, bool withEntries)
{
    Answer answer;
    answer.told = yumIO->jobs.run([&] { return read(kind, entry, most, withEntries, answer); });
    return answer;
}

// On the worker, with the lock.
bool Relations::read(Kind kind, Package::Entry const& entry, qsizetype most, bool withEntries, Answer& answer)
{
    PyRef const told = yumIO->script.object(
        method, {QLatin1String(scriptName(kind)), entry, static_cast<qint64>(most)},
        tr("Unable to read what is told of other packages"));
    PyObject* lines = nullptr;
    Py_ssize_t count = 0;
    if (!told || !PyTuple_Check(told.get()) ||
        PyArg_ParseTuple(told.get(), "O!n", &PyList_Type, &lines, &count) == 0) {
        PyErr_Clear();
        if (told) {
            yumIO->script.misunderstood(method);
        }
        return false;
    }
    takeLines(lines, withEntries, answer);
    answer.count = count;
    return true;
}

void Relations::takeLines(PyObject* lines, bool withEntries, Answer& answer)
{
    for (Py_ssize_t at = 0; at < PyList_GET_SIZE(lines); ++at) {
        PyRef const pieces = PyRef::steal(PySequence_Fast(PyList_GET_ITEM(lines, at), "not a sequence"));
        PyErr_Clear();
        Line line;
        for (Py_ssize_t of = 0; pieces && of < PySequence_Fast_GET_SIZE(pieces.get()); ++of) {
            line.append(takePiece(PySequence_Fast_GET_ITEM(pieces.get(), of), withEntries));
        }
        answer.lines.append(line);
    }
    yumIO->sharedTexts = {};
}

Relations::Piece Relations::takePiece(PyObject* piece, bool withEntries)
{
    PyObject* text = nullptr;
    PyObject* package = nullptr;
    PyObject* state = nullptr;
    PyObject* installed = nullptr;
    if (!PyTuple_Check(piece)) {
        return {yumIO->pyString(piece)};
    }
    if (PyArg_ParseTuple(piece, "OOOO!", &text, &package, &state, &PyList_Type, &installed) == 0) {
        PyErr_Clear();
        return {};
    }
    return {yumIO->pyString(text), withEntries ? entryOf(package, state, installed) : nullptr};
}

Package::Entry* Relations::entryOf(PyObject* package, PyObject* state, PyObject* installed)
{
    QString const word = yumIO->pyString(state);
    Package::State const stands = word == QLatin1String("installed") ? Package::UpToDate
                                  : word == QLatin1String("update")  ? Package::OutOfDate
                                                                     : Package::Available;
    auto const make = [this](Package::Entry*& slot, Package::State how, PyObject* object) {
        PyRef const plain = yumIO->plainForm(object);
        yumIO->collectPkg(slot, how, PyRef::borrow(object), plain.get(), yumIO->pkgName(object, plain.get()));
        return slot;
    };
    Package::Entry* made = nullptr;
    make(made, stands, package);
    entries.push_back(made);
    for (Py_ssize_t at = 0; at < PyList_GET_SIZE(installed); ++at) {
        made = make(made->installed, Package::UpToDate, PyList_GET_ITEM(installed, at));
    }
    return entries.back();
}
