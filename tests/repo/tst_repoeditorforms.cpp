// SPDX-License-Identifier: GPL-2.0-or-later
// Adding, copying and editing repositories through the form.
#include "BoxAnswer.h"
#include "ConfFiles.h"
#include "RepoEditorTest.h"

#include "repo/RepoEditorConfigDialog.h"
#include "widgets/Colors.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>
#include <functional>

class RepoEditorFormsTest : public RepoEditorTest
{
    Q_OBJECT

    /// The open form, as the user sees it.
    struct Form
    {
        template <typename Field>
        Field* field(QString const& name) const
        {
            for (Field* const candidate : window->findChildren<Field*>()) {
                if (candidate->accessibleName() == name) {
                    return candidate;
                }
            }
            qFatal("no field %s", qPrintable(name));
        }

        void fill(QString const& name, QString const& text) const
        {
            field<QLineEdit>(name)->selectAll();
            QTest::keyClick(field<QLineEdit>(name), Qt::Key_Delete);
            QTest::keyClicks(field<QLineEdit>(name), text);
        }

        QString text(QString const& name) const { return field<QLineEdit>(name)->text(); }

        void press(QString const& text) const
        {
            for (QPushButton* const candidate : window->findChildren<QPushButton*>()) {
                if (candidate->text() == text) {
                    QTest::mouseClick(candidate, Qt::LeftButton);
                }
            }
        }

        QWidget* window;
    };

    /// Does `open`, which has to run the form, and `act` in the form. The form is left if `act` doesn't.
    void inForm(std::function<void()> const& open, std::function<void(Form const&)> const& act)
    {
        bool seen = false;
        QTimer timer;
        timer.setInterval(5);
        connect(&timer, &QTimer::timeout, this, [&] {
            auto* const window = qobject_cast<RepoEditor::ConfigDialog*>(QApplication::activeModalWidget());
            if (window) {
                timer.stop();
                seen = true;
                act(Form{window});
                if (window->isVisible()) {
                    window->reject();
                }
            }
        });
        timer.start();
        open();
        QVERIFY(seen);
    }

    std::unique_ptr<BoxAnswer> boxes; ///< of which there are to be none

    std::function<void()> pressing(QString const& text) const
    {
        return [this, text] { click(text); };
    }

private Q_SLOTS:
    void init()
    {
        boxes = std::make_unique<BoxAnswer>();
        makeDialog();
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        table()->setCurrentRow(-1);
    }

    void cleanup()
    {
        QCOMPARE(boxes->texts, QStringList());
        boxes.reset();
        dropDialog();
    }

    void addAppendsWhatTheFormHolds()
    {
        inForm(pressing("Add"), [](Form const& form) {
            form.fill("Identifier", "heath");
            form.fill("Name", "Heather");
            form.press("OK");
        });
        QCOMPARE(shown(), (QStringList{"fen", "heath", "marsh", "moor", "weald"}));
        QCOMPARE(root->conf.repos.last().name, QStringLiteral("Heather"));
        QCOMPARE(currentId(), QStringLiteral("heath"));
        QCOMPARE(status()->text(), QStringLiteral("Unapplied Configuration Changes"));
        click("Apply");
        QVERIFY(
            ConfFiles::content(*root, "/etc/yum.repos.d/heath.repo").startsWith("[heath]\nname=Heather\n"));
    }

    void aFormLeftUnchangedAddsNothing()
    {
        inForm(pressing("Add"), [](Form const& form) { form.press("OK"); });
        inForm(pressing("Add"), [](Form const& form) {
            form.fill("Name", "nothing");
            form.press("Cancel");
        });
        QCOMPARE(root->conf.repos.size(), 4);
        QVERIFY(!button("Apply")->isEnabled());
        QCOMPARE(status()->text(), QString());
    }

    void aRepositoryWithoutIdentifierIsNewAndAnError()
    {
        inForm(pressing("Add"), [](Form const& form) {
            form.fill("Name", "no identifier");
            form.press("OK");
        });
        QVERIFY(shown().contains("(new)"));
        QVERIFY(cell("(new)", 2).data(Qt::FontRole).value<QFont>().italic());
        QCOMPARE(status()->text(), QStringLiteral("A repository has no Identifier"));
        QCOMPARE(statusColor(), QColor(Colors::error()));
        QVERIFY(button("Apply")->isEnabled());
        QVERIFY(root->reposEnabled.value(QString()));
        clickCell("(new)", 0);
        QVERIFY(!root->reposEnabled.value(QString()));
    }

    void copyStartsFromTheCurrentRepository()
    {
        clickCell("moor", 2);
        inForm(pressing("Copy"), [](Form const& form) {
            QCOMPARE(form.text("Identifier"), QStringLiteral("moor"));
            form.fill("Identifier", "moor-two");
            form.press("OK");
        });
        Repo::Entry const& copied = root->conf.repos.last();
        QCOMPARE(copied.id, QStringLiteral("moor-two"));
        QCOMPARE(copied.name, QStringLiteral("b"));
        QCOMPARE(copied.file, entry("moor").file);
        QCOMPARE(copied.filePosition, entry("moor").filePosition);
        QCOMPARE(currentId(), QStringLiteral("moor-two"));
        click("Apply");
        QByteArray const file = ConfFiles::content(*root, "/etc/yum.repos.d/b.repo");
        QVERIFY(file.contains("[moor]") && file.contains("[moor-two]"));
    }

    void aCopyLeftUneditedAddsNothing()
    {
        clickCell("moor", 2);
        inForm(pressing("Copy"), [](Form const& form) { form.press("OK"); });
        QCOMPARE(root->conf.repos.size(), 4);
        QVERIFY(!button("Apply")->isEnabled());
    }

    void editChangesTheRowUnderTheSort()
    {
        clickCell("fen", 2);
        inForm(pressing("Edit"), [](Form const& form) {
            form.fill("Identifier", "zen");
            form.press("OK");
        });
        QCOMPARE(shown(), (QStringList{"marsh", "moor", "weald", "zen"}));
        QCOMPARE(currentId(), QStringLiteral("zen"));
        QCOMPARE(entry("zen").name, QStringLiteral("c"));
        QVERIFY(button("Apply")->isEnabled());
    }

    void aRejectedEditChangesNothing()
    {
        clickCell("fen", 2);
        inForm(pressing("Edit"), [](Form const& form) {
            form.fill("Identifier", "zen");
            form.press("Cancel");
        });
        QVERIFY(root->ids().contains("fen"));
        QVERIFY(!button("Apply")->isEnabled());
    }

    void anAcceptedFormDecidesTheSessionAgain()
    {
        clickCell("weald", 0);
        clickCell("moor", 0);
        QVERIFY(!root->reposEnabled.value("weald") && root->reposEnabled.value("moor"));
        for (char const* const id : {"weald", "moor"}) {
            clickCell(QString::fromLatin1(id), 2);
            inForm(pressing("Edit"), [](Form const& form) {
                form.fill("Name", "edited");
                form.press("OK");
            });
        }
        QVERIFY(root->reposEnabled.value("weald"));
        QVERIFY(!root->reposEnabled.value("moor"));
        clickCell("moor", 2);
        inForm(pressing("Edit"), [](Form const& form) {
            form.field<QComboBox>("Enabled")->setCurrentIndex(2);
            form.press("OK");
        });
        QVERIFY(root->reposEnabled.value("moor"));
    }

    void doubleClickEdits()
    {
        clickCell("marsh", 3);
        inForm(
            [this] {
                QTest::mouseDClick(
                    table()->viewport(), Qt::LeftButton, {}, table()->visualRect(cell("marsh", 3)).center());
            },
            [](Form const& form) { QCOMPARE(form.text("Identifier"), QStringLiteral("marsh")); });
    }

    void aSecondEditShowsTheSecondRepository()
    {
        for (char const* const id : {"fen", "moor"}) {
            clickCell(QString::fromLatin1(id), 2);
            inForm(pressing("Edit"), [id](Form const& form) {
                QCOMPARE(form.text("Identifier"), QString::fromLatin1(id));
            });
        }
    }
};

QTEST_MAIN(RepoEditorFormsTest)
#include "tst_repoeditorforms.moc"
