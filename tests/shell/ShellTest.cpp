// SPDX-License-Identifier: GPL-2.0-or-later
#include "ShellTest.h"

#include "base/Application.h"
#include "bridge/Python.h"
#include "tests/ClickEntry.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace
{

constexpr int actionColumn = 0;
constexpr int nameColumn = 3;

/// Reaches the interpreter that the window's engine has started. Never destroyed, since its destructor would
/// end that interpreter.
class Script final : public Python
{
public:
    static Script& instance()
    {
        static auto* const only = new Script;
        return *only;
    }

    QString call(char const* function, QString const& text)
    {
        PyGILStateWrapper const lock(true);
        PyRef const answer = pyCall(function, "(s)", text.toUtf8().constData());
        return QString::fromUtf8(answer ? pyString(answer.get()) : "no answer");
    }

protected:
    void error(char const* message) override { qWarning("%s", message); }
    void warning(char const* message) override { qWarning("%s", message); }
};

QString words(QString text)
{
    return text.remove(QLatin1Char('&'));
}

} // namespace

QString ShellTest::era()
{
    return qEnvironmentVariable("VEM_TEST_ERA", QStringLiteral("3.2.19"));
}

void ShellTest::prepare()
{
    application = qobject_cast<QApplication*>(QCoreApplication::instance());
    static QTemporaryDir const root;
    QDir(root.path()).mkpath(QStringLiteral("etc/yum.repos.d"));
    QFile file(root.filePath(QStringLiteral("etc/yum.conf")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("[main]\n"));
    file.close();
    qputenv("VEMROOT", QFile::encodeName(root.path()));
    static QTemporaryDir const share;
    auto const link = [](QString const& target, QString const& name) {
        QVERIFY(QFile::link(target, share.filePath(name)));
    };
    link(QStringLiteral(VEM_TEST_STANDINS "/%1/python").arg(era()), QStringLiteral("python"));
    for (QString const& pictures : {QStringLiteral("icons"), QStringLiteral("pixmaps")}) {
        link(QStringLiteral(VEM_TEST_SHARE "/") + pictures, pictures);
    }
    qputenv("VEMSHARE", QFile::encodeName(share.path()));
    static QTemporaryDir const configuration;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, configuration.path());
    qputenv("TZ", "UTC");
}

void ShellTest::makeWindow()
{
    if (qEnvironmentVariableIsEmpty("VEMROOT")) {
        prepare();
    }
    boxes = std::make_unique<Boxes>();
    window = new MainWindow(nullptr);
}

bool ShellTest::openWindow()
{
    window->show();
    return QTest::qWaitFor([this] { return table() && table()->isVisible() && table()->isEnabled(); }, 20000);
}

QAction* ShellTest::action(QString const& text) const
{
    for (QAction* const candidate : window->findChildren<QAction*>()) {
        if (words(candidate->text()) == text) {
            return candidate;
        }
    }
    return nullptr;
}

QPushButton* ShellTest::button(QString const& text) const
{
    for (QPushButton* const candidate : window->findChildren<QPushButton*>()) {
        if (words(candidate->text()) == text) {
            return candidate;
        }
    }
    return nullptr;
}

QAbstractItemView* ShellTest::table() const
{
    for (QAbstractItemView* const candidate : window->findChildren<QAbstractItemView*>()) {
        if (candidate->accessibleName() == QLatin1String("Packages")) {
            return candidate;
        }
    }
    return nullptr;
}

QString ShellTest::script(QString const& statements)
{
    return Script::instance().call("standin.run", statements);
}

QString ShellTest::value(QString const& expression)
{
    return Script::instance().call("standin.value", expression);
}

QStringList ShellTest::calls()
{
    return value(QStringLiteral("'\\n'.join(standin.calls)")).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void ShellTest::forgetCalls()
{
    script(QStringLiteral("standin.calls.clear()"));
}

QStringList ShellTest::names() const
{
    QAbstractItemModel const* const model = table()->model();
    QStringList shown;
    for (int row = 0; row < model->rowCount(); ++row) {
        shown.append(model->index(row, nameColumn).data().toString());
    }
    return shown;
}

int ShellTest::rowOf(QString const& name) const
{
    return static_cast<int>(names().indexOf(name));
}

void ShellTest::clickAction(QString const& name) const
{
    QModelIndex const cell = table()->model()->index(rowOf(name), actionColumn);
    table()->scrollTo(cell);
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(cell).center());
}

void ShellTest::chooseAction(QString const& name, QString const& entry) const
{
    QModelIndex const cell = table()->model()->index(rowOf(name), actionColumn);
    table()->scrollTo(cell);
    QWidget* const viewport = table()->viewport();
    QPoint const point = table()->visualRect(cell).center();
    QTimer::singleShot(0, viewport, [&entry] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        for (QAction* const one : menu->actions()) {
            if (one->text() == entry) {
                clickEntry(menu, one);
                break;
            }
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, viewport->mapToGlobal(point));
    QApplication::sendEvent(viewport, &event);
}

QString ShellTest::tipOfAction(QString const& name) const
{
    return table()->model()->index(rowOf(name), actionColumn).data(Qt::ToolTipRole).toString();
}
