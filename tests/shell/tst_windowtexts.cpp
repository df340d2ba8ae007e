// SPDX-License-Identifier: GPL-2.0-or-later
// The words of every window in the language that VEM_TEST_LANGUAGE names, in letters of VEM_TEST_FONT_SCALE
// times the usual size, on the ground that VEM_TEST_PALETTE names: all are there, none is cut off, and no
// letter does two things; all can be read, and heard; and no window is larger than a small screen.
#include "ShellTest.h"

#include "WindowAccess.h"
#include "WindowTexts.h"
#include "advisories/AdvisoriesWindow.h"
#include "history/HistoryWindow.h"
#include "matters/Moments.h"
#include "packagetable/PackageTableDescribeSection.h"
#include "packagetable/PackageTableHeader.h"
#include "packagetable/PackageTableView.h"
#include "repo/RepoAuthDialog.h"
#include "repo/RepoEntry.h"
#include "restarts/RestartsWindow.h"
#include "services/KeyDialog.h"
#include "services/KeyQuestion.h"
#include "services/ScrollableConfirmDialog.h"
#include "services/ScrollableErrorDialog.h"
#include "services/TransactionDetails.h"
#include "shell/EmptyTableNote.h"
#include "shell/LegiblePalette.h"
#include "shell/PackageFilesDialog.h"
#include "tests/Eventually.h"
#include "tests/widgets/Contrast.h"
#include "widgets/HMenu.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTranslator>
#include <QXmlStreamReader>

namespace
{

/// A language in which each text of the program is itself, between marks.
class Marker final : public QTranslator
{
public:
    /// file: one of the files of translated texts, which tells what texts translators know.
    explicit Marker(QString const& file)
    {
        QFile input(file);
        static_cast<void>(input.open(QIODevice::ReadOnly));
        QXmlStreamReader reader(&input);
        QString context;
        while (reader.readNext() != QXmlStreamReader::EndDocument && !reader.hasError()) {
            if (reader.isStartElement() && reader.name() == QLatin1String("name")) {
                context = reader.readElementText();
            } else if (reader.isStartElement() && reader.name() == QLatin1String("source")) {
                known[context].insert(reader.readElementText());
            }
        }
    }

    [[nodiscard]] bool isEmpty() const override { return known.isEmpty(); }

    QString translate(char const* context, char const* source, char const*, int) const override
    {
        // Other contexts are the toolkit's own.
        auto const at = known.constFind(QString::fromUtf8(context));
        QString const text = QString::fromUtf8(source);
        if (at == known.cend() || text.isEmpty()) {
            return QString();
        }
        if (!at->contains(text)) {
            missed.append(text);
        }
        // These are no words: shortcuts, and names of colours.
        static QRegularExpression const data(QStringLiteral("^(Ctrl\\+(Shift\\+)?.|F\\d+)$"));
        bool const isData = at.key() == QLatin1String("Colors") || data.match(text).hasMatch();
        return isData ? QString() : WindowTexts::marked(text);
    }

    mutable QStringList missed; ///< texts that translators don't know

private:
    QHash<QString, QSet<QString>> known; ///< texts by context
};

} // namespace

class WindowTextsTest : public ShellTest
{
    Q_OBJECT

    QString const language = qEnvironmentVariable("VEM_TEST_LANGUAGE", QStringLiteral("en"));
    bool const isMarked = language == QLatin1String("marked");
    QTranslator texts;
    Marker marker{QStringLiteral(VEM_TEST_SOURCE "/../../translations/vem_de.ts")};
    std::unique_ptr<LegiblePalette> legiblePalette;
    int pictures = 0;   ///< that VEM_SHOTS, a directory, has got
    QStringList looked; ///< titles of the windows that `look` has seen

    static void write(QString const& file, QByteArray const& content)
    {
        QFile output(QDir(qEnvironmentVariable("VEMROOT")).filePath(file));
        QVERIFY(output.open(QIODevice::WriteOnly) && output.write(content) == content.size());
    }

    /// The entry with this key, whatever its words are in the language.
    void trigger(char const* key) const
    {
        for (QAction* const entry : window->findChildren<QAction*>()) {
            if (entry->shortcut() == QKeySequence(QLatin1String(key))) {
                entry->trigger();
            }
        }
    }

    void look(QWidget* shown, QStringList const& data = {})
    {
        QVERIFY(shown);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        looked.append(shown->windowTitle());
        if (qEnvironmentVariableIsSet("VEM_SHOTS")) {
            QString const name = QStringLiteral("%1/%2-%3.png")
                                     .arg(qEnvironmentVariable("VEM_SHOTS"), language)
                                     .arg(++pictures, 2, 10, QLatin1Char('0'));
            shown->grab().save(name);
        }
        QString const title = shown->windowTitle() + QStringLiteral(": ");
        QRect const screen = shown->screen()->availableGeometry();
        QVERIFY2(
            shown->width() <= screen.width() && shown->height() <= screen.height(),
            qPrintable(title + QStringLiteral("%1 x %2").arg(shown->width()).arg(shown->height())));
        QStringList const unheard = WindowAccess::unheard(*shown);
        QVERIFY2(unheard.isEmpty(), qPrintable(title + unheard.join(QStringLiteral("; "))));
        QStringList const faint = WindowAccess::faint(*shown);
        QVERIFY2(faint.isEmpty(), qPrintable(title + faint.join(QStringLiteral("; "))));
        QStringList const cut = WindowTexts::cut(*shown);
        QVERIFY2(cut.isEmpty(), qPrintable(title + cut.join(QStringLiteral("; "))));
        QStringList clashes = WindowTexts::clashes(*shown);
        if (language == QLatin1String("en") || isMarked) {
            clashes.removeIf(
                [](QString const& clash) { return clash.contains(QLatin1String("Clear Actions")); });
        }
        QVERIFY2(clashes.isEmpty(), qPrintable(title + clashes.join(QStringLiteral("; "))));
        if (isMarked) {
            QStringList unmarked = WindowTexts::unmarked(*shown);
            unmarked.removeIf([&data](QString const& text) { return data.contains(text); });
            QVERIFY2(unmarked.isEmpty(), qPrintable(title + unmarked.join(QStringLiteral("; "))));
            QVERIFY2(marker.missed.isEmpty(), qPrintable(title + marker.missed.join(QStringLiteral("; "))));
        }
    }

    void look(QMenu& menu)
    {
        QStringList const cut = WindowTexts::cut(menu);
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QStringLiteral("; "))));
        QStringList const clashes = WindowTexts::clashes(menu);
        QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(QStringLiteral("; "))));
        if (isMarked) {
            QStringList const unmarked = WindowTexts::unmarked(menu);
            QVERIFY2(unmarked.isEmpty(), qPrintable(unmarked.join(QStringLiteral("; "))));
        }
    }

    /// Opens a context menu of the table by `open`, looks at it and closes it.
    void lookAtPopup(std::function<void()> const& open)
    {
        bool seen = false;
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] {
            if (auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                poll.stop();
                seen = true;
                look(*menu);
                menu->close();
            }
        });
        poll.start(5);
        open();
        // Not every release of the toolkit opens it as a loop of its own.
        EVENTUALLY_VERIFY(seen);
    }

    QPushButton* translatedButton(QWidget* in, char const* context, char const* source) const
    {
        QString const text = QCoreApplication::translate(context, source);
        for (QPushButton* const candidate : in->findChildren<QPushButton*>()) {
            if (candidate->text() == text) {
                return candidate;
            }
        }
        return nullptr;
    }

    PackageTable::View* packages() const { return window->findChild<PackageTable::View*>(); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(!marker.isEmpty());
        if (isMarked) {
            QCoreApplication::installTranslator(&marker);
        } else if (language != QLatin1String("en")) {
            QVERIFY(texts.load(QStringLiteral(VEM_TEST_SHARE "/translations/vem_") + language));
            QCoreApplication::installTranslator(&texts);
        }
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * qEnvironmentVariable("VEM_TEST_FONT_SCALE", "1").toDouble());
        QApplication::setFont(font);
        legiblePalette = std::make_unique<LegiblePalette>(*qApp);
        if (qEnvironmentVariable("VEM_TEST_PALETTE") == QLatin1String("dark")) {
            QApplication::setPalette(Contrast::darkPalette());
        }
        // What a description tells of other packages, which needs no translation.
        qputenv(
            "VEM_TEST_STATEMENTS", "def relations(self, kind, package, most):\n"
                                   "    other = standin.world.find('available', 'hazel')\n"
                                   "    return [['1 ', ('2', other, 'available', [])]] * 2, 3\n"
                                   "YumIO.relations = relations\n");
        makeWindow();
        write(
            QStringLiteral("etc/yum.repos.d/trees.repo"),
            "[trees]\nname=Trees\nbaseurl=http://host/buffet?login=oak&key=leaf&path=/trees\n");
        window->show();
        QVERIFY(
            QTest::qWaitFor([this] { return packages()->isVisible() && packages()->isEnabled(); }, 20000));
    }

    void cleanupTestCase() { delete window; }

    void init()
    {
        looked.clear();
        marker.missed.clear();
        boxes->take();
    }

    void mainWindow()
    {
        look(window);
        for (QAction* const action : window->menuBar()->actions()) {
            action->menu()->popup(QPoint());
            look(*action->menu());
            action->menu()->close();
        }
    }

    void wrongExpressionAndEmptyTable()
    {
        auto* const line = window->findChild<QLineEdit*>();
        QString const before = line->text();
        auto const apply = [line](QString const& expression) {
            line->setText(expression);
            QTest::keyClick(line, Qt::Key_Return);
        };
        apply(QStringLiteral("1["));
        // The system's library tells what is wrong, in words of its own.
        look(window, {});
        apply(QStringLiteral("123"));
        EVENTUALLY_VERIFY(window->findChild<EmptyTableNote*>()->isVisible());
        look(window);
        EmptyTableNote const* const note = window->findChild<EmptyTableNote*>();
        apply(QString(500, QLatin1Char('1')));
        EVENTUALLY_VERIFY(note->isVisible());
        look(window);
        QVERIFY(note->parentWidget()->rect().contains(note->geometry()));
        apply(before);
        boxes->take();
    }

    void columnsMenu()
    {
        QMenu* const menu = packages()->findChild<PackageTable::Header*>()->columnsMenu();
        menu->popup(QPoint());
        look(*menu);
        menu->close();
    }

    void logWindow()
    {
        window->displayLog();
        for (QWidget* const other : QApplication::topLevelWidgets()) {
            if (other != window && other->isVisible()) {
                look(other);
                other->close();
            }
        }
        QCOMPARE(looked.size(), 1);
    }

    void history()
    {
        QCOMPARE(
            script(QStringLiteral(
                "def told(number, result):\n"
                "    return dict(number=number, begun=1700000000, ended=1700000060, userName='1', "
                "command='2',\n"
                "        comment='3', result=result, counts={'upgrade': 1, 'reason': 1, 'groups': 1},\n"
                "        packages=[dict(name='4', arch='5', old='6', new='7', action='upgrade', "
                "reason='weak',\n"
                "            repository='8', state='failed')],\n"
                "        groups=[dict(id='9', name='', action='install', environment=False)], output=[])\n"
                "standin.instead('historyList', lambda: [told(2, 'cut off'), told(1, 'failed')])\n"
                "standin.instead('historyOf', lambda number: told(number, 'failed'))\n"
                "standin.instead('historySearch', lambda text: [])\n")),
            QString());
        window->refresh();
        trigger("Ctrl+H");
        auto* const shown = window->findChild<History::Window*>();
        shown->reload();
        QStringList data;
        for (int number = 1; number < 10; ++number) {
            data.append(QString::number(number));
        }
        data.append({QStringLiteral("6 \u2192 7"), Moments::moment(1700000000)});
        look(shown, data);
        auto* const pages = shown->findChild<QTabWidget*>();
        pages->setCurrentIndex(1);
        look(shown, data);
        if (QPushButton* const files = translatedButton(shown, "History::Window", "&Export")) {
            lookAtPopup([files] { files->showMenu(); });
        }
        shown->findChild<QLineEdit*>()->setText(QStringLiteral("1"));
        shown->reload();
        look(shown, data);
        shown->close();
        QCOMPARE(script(QStringLiteral("standin.reset()")), QString());
        window->refresh();
    }

    void advisories()
    {
        QCOMPARE(
            script(QStringLiteral(
                "def told(identifier, kind, severity, **more):\n"
                "    return dict(identifier=identifier, type=kind, severity=severity, title='1', "
                "issued=1700000000,\n"
                "        count=2, cves=['3'], open=severity != 'low', **more)\n"
                "def whole(identifier):\n"
                "    return told(identifier, 'security', 'moderate', text='4', references=[\n"
                "        dict(type='cve', id='5', title='', address='https://host/')],\n"
                "        packages=[dict(name=name, arch='6', version='7', installed=there, open=opened)\n"
                "            for name, there, opened in (('8', '9', True), ('a', '', False), ('b', '9', "
                "False))])\n"
                "standin.instead('advisoryList', lambda: [told('c', kind, severity) for kind, severity in (\n"
                "    ('security', 'critical'), ('security', 'important'), ('bugfix', 'moderate'),\n"
                "    ('enhancement', 'low'), ('newpackage', ''), ('other', ''))])\n"
                "standin.instead('advisoryOf', whole)\n")),
            QString());
        window->refresh();
        trigger("Ctrl+D");
        auto* const shown = window->findChild<Advisories::Window*>();
        QVERIFY(shown);
        shown->findChild<QComboBox*>()->setCurrentIndex(2);
        shown->reload();
        QStringList data{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
        for (int number = 1; number < 10; ++number) {
            data.append(QString::number(number));
        }
        data.append(Moments::day(1700000000));
        look(shown, data);
        shown->findChild<QLineEdit*>()->setText(QStringLiteral("no such one"));
        look(shown, data);
        shown->close();
        QCOMPARE(script(QStringLiteral("standin.reset()")), QString());
        window->refresh();
    }

    void restarts()
    {
        QCOMPARE(
            script(QStringLiteral(
                "standin.instead('restartAdvice', lambda: dict(note='1', since=1700000000, unread=2,\n"
                "    reboot=[dict(name='3', version='4', installed=1700000000)],\n"
                "    processes=[dict(pid=5, userName='6', command='7', started=1700000000, unit=unit, "
                "own=False,\n"
                "        files=[dict(path='8', package='9', gone=gone) for gone in (True, False)])\n"
                "        for unit in ('a', 'b')],\n"
                "    units=[dict(unit='b', own=False, obstacle='1')]))\n"
                "standin.instead('restartServices', lambda units: [dict(unit='a', done=False, "
                "text='2')])\n")),
            QString());
        window->refresh();
        trigger("Ctrl+Shift+R");
        auto* const shown = window->findChild<Restarts::Window*>();
        QVERIFY(shown);
        shown->reload();
        QStringList data{QStringLiteral("a"), QStringLiteral("b"), Moments::moment(1700000000)};
        for (int number = 1; number < 10; ++number) {
            data.append(QString::number(number));
        }
        data.append(QStringLiteral("  3 4 (%1)").arg(Moments::moment(1700000000)));
        look(shown, data);
        boxes->whileShown([this, data] { look(QApplication::activeModalWidget(), data); });
        translatedButton(shown, "Restarts::Window", "&Restart These Services")->click();
        boxes->take();
        shown->close();
        QCOMPARE(script(QStringLiteral("standin.reset()")), QString());
        window->refresh();
    }

    void about()
    {
        // The button is the toolkit's own.
        boxes->whileShown([this] { look(QApplication::activeModalWidget(), {QStringLiteral("OK")}); });
        window->about();
        QCOMPARE(looked.size(), 1);
    }

    void description()
    {
        QModelIndex const first = packages()->model()->index(0, 3);
        QVERIFY(first.isValid());
        packages()->setCurrentIndex(first);
        boxes->press({QStringLiteral("Escape")});
        boxes->whileShown([this] {
            QWidget* const shown = QApplication::activeModalWidget();
            QStringList values;
            for (QLabel const* const label : shown->findChildren<QLabel*>()) {
                if (!label->text().endsWith(QLatin1Char(':'))) {
                    values.append(label->text());
                }
            }
            look(shown, values);
        });
        packages()->describe();
        QCOMPARE(looked.size(), 1);
    }

    void openSectionsOfADescription()
    {
        packages()->setCurrentIndex(packages()->model()->index(0, 3));
        boxes->press({QStringLiteral("Escape")});
        boxes->whileShown([this] {
            QWidget* const shown = QApplication::activeModalWidget();
            auto const sections = shown->findChildren<PackageTable::Describe::Instance::Section*>();
            QVERIFY(sections.size() >= 5);
            QStringList values;
            for (auto* const section : sections) {
                section->findChild<QToolButton*>()->click();
                QVERIFY(section->isOpen());
            }
            // What has been opened is laid out by and by.
            EVENTUALLY_VERIFY(WindowTexts::cut(*shown).isEmpty());
            for (QLabel const* const label : shown->findChildren<QLabel*>()) {
                bool const ofSection =
                    qobject_cast<PackageTable::Describe::Instance::Section*>(label->parentWidget());
                if (!ofSection && !label->text().endsWith(QLatin1Char(':'))) {
                    values.append(label->text());
                }
            }
            look(shown, values);
        });
        packages()->describe();
        QCOMPARE(looked.size(), 1);
    }

    void contextMenus()
    {
        for (int column : {0, 3}) {
            QModelIndex const cell = packages()->model()->index(0, column);
            lookAtPopup(
                [&] { packages()->handleCustomContextMenuRequested(packages()->visualRect(cell).center()); });
        }
    }

    void repositoryEditorAndItsForm()
    {
        boxes->press({QStringLiteral("Escape"), QStringLiteral("Escape"), QStringLiteral("Escape")});
        boxes->whileShown([this] {
            QWidget* const shown = QApplication::activeModalWidget();
            look(shown);
            if (QPushButton* const add = translatedButton(shown, "RepoEditor::Dialog", "Add")) {
                add->click();
            }
        });
        window->editRepositories();
        QCOMPARE(looked.size(), 2);
    }

    void questionForCredentials()
    {
        Repo::Entry entry;
        entry.id = QStringLiteral("trees");
        entry.name = QStringLiteral("Trees");
        entry.baseurl = QStringLiteral("http://host/buffet?login=&key=&path=/trees");
        RepoAuth::Dialog dialog(window);
        boxes->press({QStringLiteral("Escape")});
        // The two words of the address are what its server calls them.
        QStringList const data{
            entry.id, entry.name, entry.baseurl, QStringLiteral("login"), QStringLiteral("key")};
        boxes->whileShown([&] { look(&dialog, data); });
        dialog.exec(&entry);
        QCOMPARE(looked.size(), 1);
    }

    void packageFiles()
    {
        PackageFilesDialog dialog(window);
        dialog.show();
        look(&dialog);
        dialog.findChild<QPlainTextEdit*>()->setPlainText(QStringLiteral("1"));
        // The next event would do that.
        dialog.layout()->activate();
        look(&dialog, {QStringLiteral("1")});
        // A path has no place where a line of it could end.
        QString const path = QLatin1Char('/') + QString(300, QLatin1Char('1'));
        int const before = dialog.width();
        dialog.findChild<QPlainTextEdit*>()->setPlainText(path);
        dialog.layout()->activate();
        look(&dialog, {path});
        QCOMPARE(dialog.width(), before);
    }

    void keys()
    {
        QString const location = QStringLiteral("http://host.example/keys/RPM-GPG-KEY-estate");
        KeyQuestion question{
            location,
            QStringLiteral("estate"),
            QStringLiteral("lamp-1.1-1.noarch, lone-1.0-1.noarch"),
            QString(),
            QString(),
            QString(),
            0,
            0,
            true};
        auto const show = [&] {
            KeyDialog dialog(question, window);
            dialog.show();
            look(&dialog);
        };
        show();
        question.location = QStringLiteral("https://host.example/keys/RPM-GPG-KEY-estate");
        show();
        question.userId = QStringLiteral("Estate Signing <signing@estate.example>");
        question.fingerprint = QStringLiteral("653B6A0B10617ED25C453619458762D05376E0CD");
        question.keyId = QStringLiteral("458762D05376E0CD");
        question.created = 1709294400;
        question.packages.clear();
        show();
        question.location = QStringLiteral("file:///etc/pki/rpm-gpg/RPM-GPG-KEY-estate");
        question.expires = 2024827200;
        show();
        QCOMPARE(looked.size(), 4);
    }

    void reports()
    {
        QString const text = QStringLiteral("1.\n2.\n3.");
        ScrollableErrorDialog error(text, window);
        error.show();
        look(&error);
        ScrollableConfirmDialog question(text, window);
        question.show();
        look(&question);
    }

    void detailsOfATransaction()
    {
        TransactionDetails details;
        TransactionDetails::Row row;
        row.action = TransactionDetails::Action::Update;
        row.name = row.arch = row.oldVersion = row.newVersion = row.repository = QStringLiteral("1");
        row.warnings = TransactionDetails::Older | TransactionDetails::Unchecked;
        details.rows = {row};
        details.changes = true;
        ScrollableConfirmDialog question(QStringLiteral("7"), details, window);
        question.findChild<QTabWidget*>()->setCurrentIndex(1);
        question.show();
        look(&question);
    }
};

QTEST_MAIN(WindowTextsTest)
#include "tst_windowtexts.moc"
