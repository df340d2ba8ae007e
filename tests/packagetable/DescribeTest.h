// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "packagetable/PackageTableDescribeDialog.h"
#include "repo/YumConfIO.h"
#include "tests/engine/EngineTest.h"
#include "widgets/HScrollArea.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextDocumentFragment>
#include <QTextEdit>

/// What the tests of the description dialog share: a dialog over the stand-in's packages, and eyes for it.
class DescribeTest : public EngineTest
{
    Q_OBJECT

protected:
    using Dialog = PackageTable::Describe::Dialog;

    /// A text dialog, as a user saw it.
    struct Shown
    {
        QString title;
        QString text;
    };

    /// The engine's entry: the head of its chain.
    Package::Entry const& entry(QString const& name) const { return *package(name); }

    /// Builds the description; it isn't shown.
    void config(Package::Entry const& described) { dialog->config(engine.get(), described, &conf); }

    static QList<HScrollArea*> areas(QWidget const& of) { return of.findChildren<HScrollArea*>(); }

    /// A line for each row of the dialog's n-th area: "Label: value", with buttons as "[text]".
    static QStringList rows(QWidget const& of, qsizetype area = 0)
    {
        return gridRows(areas(of).at(area)->widget()->findChild<QGridLayout*>());
    }

    static QStringList gridRows(QGridLayout const* grid)
    {
        QStringList lines;
        for (int row = 0; row < grid->rowCount(); ++row) {
            QLayoutItem* const left = grid->itemAtPosition(row, 0);
            QLayoutItem* const right = grid->itemAtPosition(row, 1);
            if (left) {
                lines.append(left == right ? told(left) : told(left) + QLatin1Char(' ') + told(right));
            }
        }
        return lines;
    }

    /// The first words of each row.
    static QStringList labels(QStringList const& rows)
    {
        QStringList found;
        for (QString const& row : rows) {
            found.append(row.section(QLatin1Char(':'), 0, 0));
        }
        return found;
    }

    /// The button in the row of this label; null where the row isn't there.
    static QPushButton* button(QWidget const& of, QString const& label, qsizetype area = 0)
    {
        auto const* const grid = areas(of).at(area)->widget()->findChild<QGridLayout*>();
        for (int row = 0; row < grid->rowCount(); ++row) {
            QLayoutItem* const left = grid->itemAtPosition(row, 0);
            if (left && told(left) == label + QLatin1Char(':')) {
                QLayoutItem* const right = grid->itemAtPosition(row, 1);
                QWidget* const widget =
                    right->layout() ? right->layout()->itemAt(1)->widget() : right->widget();
                return qobject_cast<QPushButton*>(widget);
            }
        }
        return nullptr;
    }

    /// Presses the button, and closes the text dialog that comes of it.
    Shown show(QString const& label, qsizetype area = 0)
    {
        Shown shown;
        boxes->whileShown([&shown] {
            QWidget const* const window = QApplication::activeModalWidget();
            if (auto const* const edit = window->findChild<QTextEdit*>()) {
                shown = {window->windowTitle(), edit->toPlainText()};
            }
        });
        button(*dialog, label, area)->click();
        boxes->whileShown(nullptr);
        return shown;
    }

    QList<YumRepoEnabled> usedOptions;
    QHash<QString, bool> reposEnabled;
    YumConfIO conf{usedOptions, reposEnabled};
    std::unique_ptr<Dialog> dialog;

protected Q_SLOTS:
    void init()
    {
        EngineTest::init();
        conf.repos.clear();
        dialog = std::make_unique<Dialog>(nullptr);
    }

private:
    static QString told(QLayoutItem* item)
    {
        if (QLayout* const layout = item->layout()) {
            QStringList parts;
            for (int at = 0; at < layout->count(); ++at) {
                parts.append(told(layout->itemAt(at)));
            }
            return parts.join(QLatin1Char(' '));
        }
        if (auto const* const label = qobject_cast<QLabel*>(item->widget())) {
            return label->textFormat() == Qt::RichText
                       ? QTextDocumentFragment::fromHtml(label->text()).toPlainText()
                       : label->text();
        }
        auto const* const pushButton = qobject_cast<QPushButton*>(item->widget());
        return pushButton ? QLatin1Char('[') + pushButton->text() + QLatin1Char(']') : QString();
    }
};
