// SPDX-License-Identifier: GPL-2.0-or-later
#include "bench/driver/Driver.h"

#include <QAbstractEventDispatcher>
#include <QAbstractItemDelegate>
#include <QAbstractProxyModel>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <malloc.h>

namespace
{

/// A function of the interpreter that the program under test has loaded.
template <typename Function>
Function* interpreters(char const* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

/// sys.getallocatedblocks(): the function behind it has another name in each release.
qint64 allocatedBlocks()
{
    int const state = interpreters<int()>("PyGILState_Ensure")();
    void* const answer = interpreters<void*(void*)>("PyObject_CallNoArgs")(
        interpreters<void*(char const*)>("PySys_GetObject")("getallocatedblocks"));
    qint64 const blocks = interpreters<qint64(void*)>("PyLong_AsLongLong")(answer);
    interpreters<void(void*)>("Py_DecRef")(answer);
    interpreters<void(int)>("PyGILState_Release")(state);
    return blocks;
}

double milliseconds(qint64 nanoseconds)
{
    return static_cast<double>(nanoseconds) / 1e6;
}

/// Of the clock that other processes read, too.
double monotonicSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

QString words(QString text)
{
    return text.remove(u'&');
}

/// The first of these widgets or actions that says `text`.
template <typename Thing>
Thing* saying(QString const& text, QList<Thing*> const& things)
{
    for (Thing* const thing : things) {
        if (words(thing->text()) == text) {
            return thing;
        }
    }
    return nullptr;
}

template <typename Widget>
Widget* called(QString const& name, QWidget const* inside)
{
    for (Widget* const widget : inside->findChildren<Widget*>()) {
        if (widget->accessibleName() == name) {
            return widget;
        }
    }
    return nullptr;
}

QString textOf(QDialog const* dialog)
{
    QStringList lines(dialog->windowTitle());
    if (auto const* const box = qobject_cast<QMessageBox const*>(dialog)) {
        lines.append(box->text());
    } else {
        for (QLabel const* const label : dialog->findChildren<QLabel*>()) {
            lines.append(label->text());
        }
    }
    return lines.join(u'\n');
}

/// The kibibytes that the kernel and the allocators tell of this process, and its open files.
void addMemory(QJsonObject& line)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return;
    }
    for (QByteArray const& row : status.readAll().split('\n')) {
        if (row.startsWith("VmHWM:")) {
            line.insert(QLatin1String("peak"), row.simplified().split(' ').value(1).toInt());
        }
    }
    struct mallinfo2 const allocated = mallinfo2();
    line.insert(
        QLatin1String("allocated"), static_cast<double>(allocated.uordblks + allocated.hblkhd) / 1024);
    // The interpreter has an allocator of its own, which tells how many blocks it has given away.
    line.insert(QLatin1String("blocks"), static_cast<qint64>(allocatedBlocks()));
    QDir const descriptors(QStringLiteral("/proc/self/fd"));
    line.insert(
        QLatin1String("descriptors"),
        static_cast<int>(descriptors.entryList(QDir::Files | QDir::System).count()));
}

} // namespace

Driver::Driver(QString const& stepsFile, QString const& outputFile, QObject* parentObject)
    : QObject(parentObject),
      output(outputFile)
{
    QFile file(stepsFile);
    if (!output.open(QIODevice::WriteOnly) || !file.open(QIODevice::ReadOnly)) {
        fail(QStringLiteral("cannot open %1 and %2").arg(stepsFile, outputFile));
    }
    steps = QJsonDocument::fromJson(file.readAll()).array();
    connect(
        QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, &Driver::look);
    timer.start();
}

void Driver::look()
{
    if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        dialog && dialog->isVisible() && !answering) {
        answering = true;
        QTimer::singleShot(0, dialog, [this, dialog] { answer(dialog); });
    }
    if (begun) {
        return;
    }
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        window = qobject_cast<QMainWindow*>(widget);
        table = window ? window->findChild<QTableView*>() : nullptr;
        if (table && table->isVisible() && table->isEnabled()) {
            begun = true;
            QTimer::singleShot(0, this, &Driver::run);
            return;
        }
    }
}

void Driver::answer(QDialog* dialog)
{
    settle();
    auto const buttons = dialog->findChildren<QPushButton*>();
    if (dialog->windowTitle() == QLatin1String("VEM Package Description")) {
        answering = false;
        saying(QStringLiteral("Close"), buttons)->click();
        return;
    }
    QPushButton* const ok = saying(QStringLiteral("OK"), buttons);
    if (!ok || !saying(QStringLiteral("Cancel"), buttons)) {
        // No question: it tells of a fault.
        fail(textOf(dialog));
    }
    askedAfter = milliseconds(timer.nsecsElapsed());
    answering = false;
    ok->click();
}

void Driver::run()
{
    settle();
    QJsonObject line{{"name", "start"}, {"at", monotonicSeconds()}};
    line.insert(QLatin1String("gap"), milliseconds(pinger.longest()));
    write(line);
    for (auto const& step : std::as_const(steps)) {
        measure(step.toObject());
    }
    output.close();
    trigger(QStringLiteral("Quit"));
}

void Driver::settle()
{
    auto const serve = [] {
        while (QEventLoop().processEvents(QEventLoop::AllEvents)) {
        }
    };
    serve();
    // An answer comes only after all that was asked before.
    QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1, 1);
    serve();
}

void Driver::measure(QJsonObject const& step)
{
    settle();
    askedAfter = -1;
    QJsonObject line = step;
    pinger.restart();
    timer.start();
    perform(step);
    settle();
    line.insert(QLatin1String("ms"), milliseconds(timer.nsecsElapsed()));
    line.insert(QLatin1String("gap"), milliseconds(pinger.longest()));
    if (askedAfter >= 0) {
        line.insert(QLatin1String("asked"), askedAfter);
    }
    if (step.contains(QLatin1String("table"))) {
        auto const* const other = called<QTableView>(step.value(QLatin1String("table")).toString(), window);
        line.insert(QLatin1String("listed"), other ? other->model()->rowCount() : -1);
    }
    if (step.value(QLatin1String("do")) == QLatin1String("walk")) {
        QJsonArray widths;
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            if (!table->isColumnHidden(column)) {
                widths.append(table->columnWidth(column));
            }
        }
        line.insert(QLatin1String("widths"), widths);
        line.insert(QLatin1String("walked"), walkedWidths());
    }
    write(line);
}

void Driver::perform(QJsonObject const& step)
{
    QString const what = step.value(QLatin1String("do")).toString();
    QJsonValue const value = step.value(QLatin1String("value"));
    QJsonArray const values = value.toArray();
    if (what == QLatin1String("press")) {
        press(value.toString());
    } else if (what == QLatin1String("choose")) {
        choose(values.at(0).toString(), values.at(1).toString());
    } else if (what == QLatin1String("check")) {
        check(values.at(0).toString(), values.at(1).toBool());
    } else if (what == QLatin1String("type")) {
        type(value.toString());
    } else if (what == QLatin1String("write")) {
        writeByKeys(value.toString());
    } else if (what == QLatin1String("reveal")) {
        table->scrollTo(table->model()->index(0, value.toInt()));
    } else if (what == QLatin1String("header")) {
        clickHeader(value.toInt());
    } else if (what == QLatin1String("select")) {
        select(value);
    } else if (what == QLatin1String("describe")) {
        describe(value.toInt());
    } else if (what == QLatin1String("stop")) {
        stop(value.toString());
    } else if (what == QLatin1String("menu")) {
        trigger(value.toString());
    } else if (what != QLatin1String("walk")) {
        fail(QStringLiteral("unknown step \"%1\"").arg(what));
    }
}

void Driver::press(QString const& text)
{
    auto* const button = saying(text, window->findChildren<QPushButton*>());
    if (!button || !button->isEnabled()) {
        fail(QStringLiteral("no enabled button \"%1\"").arg(text));
    }
    button->click();
}

void Driver::choose(QString const& name, QString const& item)
{
    auto* const combo = called<QComboBox>(name, window);
    int const index = combo ? combo->findText(item) : -1;
    if (index == -1) {
        fail(QStringLiteral("no \"%2\" in \"%1\"").arg(name, item));
    }
    combo->setCurrentIndex(index);
}

void Driver::check(QString const& text, bool on)
{
    auto* const box = saying(text, window->findChildren<QCheckBox*>());
    if (!box) {
        fail(QStringLiteral("no box \"%1\"").arg(text));
    }
    if (box->isChecked() != on) {
        box->click();
    }
}

void Driver::type(QString const& text)
{
    auto* const edit = called<QLineEdit>(QStringLiteral("Regular expression"), window);
    if (!edit) {
        fail(QStringLiteral("no line for an expression"));
    }
    edit->setText(text);
}

void Driver::writeByKeys(QString const& text)
{
    auto* const edit = called<QLineEdit>(QStringLiteral("Regular expression"), window);
    if (!edit) {
        fail(QStringLiteral("no line for an expression"));
    }
    QEventLoop loop;
    bool followed = false;
    QObject::connect(table->model(), &QAbstractItemModel::modelReset, &loop, [&] {
        followed = true;
        loop.quit();
    });
    QTimer::singleShot(std::chrono::seconds(30), &loop, &QEventLoop::quit);
    edit->selectAll();
    for (QChar const letter : text) {
        for (QEvent::Type const kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(kind, 0, Qt::NoModifier, QString(letter));
            QCoreApplication::sendEvent(edit, &event);
        }
    }
    loop.exec();
    if (!followed) {
        fail(QStringLiteral("the table did not follow \"%1\"").arg(text));
    }
}

void Driver::select(QJsonValue const& what)
{
    if (what.isDouble()) {
        QAbstractItemModel const& model = *table->model();
        int const last = std::min(what.toInt(), model.rowCount()) - 1;
        QItemSelection const rows(model.index(0, 0), model.index(last, model.columnCount() - 1));
        table->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    } else {
        what.toBool() ? table->selectAll() : table->clearSelection();
    }
}

void Driver::describe(int row)
{
    table->setCurrentIndex(table->model()->index(row, 0));
    press(QStringLiteral("Describe"));
}

void Driver::stop(QString const& text)
{
    constexpr std::chrono::milliseconds look(50);
    constexpr std::chrono::milliseconds waits(2000);
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        if (askedAfter < 0) {
            return;
        }
        watch.stop();
        // By then nothing is left to be done but to wait for the server.
        QTimer::singleShot(waits, this, [this] {
            pinger.restart();
            timer.restart();
            press(QStringLiteral("Stop"));
        });
    });
    watch.start(look);
    press(text);
}

void Driver::clickHeader(int column)
{
    QHeaderView const* const header = table->horizontalHeader();
    QPoint const at(
        header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
    for (QEvent::Type const kind : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        Qt::MouseButtons const held = kind == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(
            kind, at, header->viewport()->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(header->viewport(), &event);
    }
    if (header->sortIndicatorSection() != column) {
        fail(QStringLiteral("the click on column %1 did not sort by it").arg(column));
    }
}

void Driver::trigger(QString const& text)
{
    QAction* const action = saying(text, window->findChildren<QAction*>());
    if (!action || !action->isEnabled()) {
        fail(QStringLiteral("no enabled menu entry \"%1\"").arg(text));
    }
    action->trigger();
}

QJsonArray Driver::walkedWidths() const
{
    struct Opened : QAbstractItemView
    {
        using QAbstractItemView::initViewItemOption;
    };
    QStyleOptionViewItem option;
    (table->*&Opened::initViewItemOption)(&option);
    QAbstractItemModel const& model = *table->model();
    int const grid = table->showGrid() ? 1 : 0;
    QJsonArray widths;
    for (int column = 0; column < model.columnCount(); ++column) {
        if (table->isColumnHidden(column)) {
            continue;
        }
        int widest = table->horizontalHeader()->sectionSizeHint(column);
        for (int row = 0; row < model.rowCount(); ++row) {
            QModelIndex const index = model.index(row, column);
            widest =
                std::max(widest, table->itemDelegateForIndex(index)->sizeHint(option, index).width() + grid);
        }
        widths.append(widest);
    }
    return widths;
}

void Driver::write(QJsonObject line)
{
    addMemory(line);
    if (table) {
        line.insert(QLatin1String("rows"), table->model()->rowCount());
        if (auto const* const proxy = qobject_cast<QAbstractProxyModel const*>(table->model())) {
            line.insert(QLatin1String("entries"), proxy->sourceModel()->rowCount());
        }
    }
    output.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    output.flush();
}

void Driver::fail(QString const& text)
{
    write({{"error", text}});
    // Without the program's own end: it may be in the middle of a job.
    std::_Exit(3);
}

namespace
{

void begin()
{
    QString const stepsFile = qEnvironmentVariable("VEM_BENCH_STEPS");
    if (!stepsFile.isEmpty()) {
        // The loop's first act: what comes before isn't a gap between two events.
        QTimer::singleShot(
            0, qApp, [stepsFile] { new Driver(stepsFile, qEnvironmentVariable("VEM_BENCH_OUTPUT"), qApp); });
    }
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(begin)
