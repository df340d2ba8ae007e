// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/EmptyTableNote.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableExpressionEdit.h"
#include "packagetable/PackageTableView.h"
#include "widgets/Sizing.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QVBoxLayout>
#include <chrono>

namespace
{

/// Nobody is told in the middle of a word.
constexpr std::chrono::milliseconds pauseTime(300);

constexpr int columnsOfExpression = 40; ///< characters

constexpr QLatin1String viewAll("all");
constexpr QLatin1String withGroups("groups");
constexpr QLatin1String withoutCase("case");
constexpr QLatin1String withoutExpression("expression");

QString linkTo(QLatin1String what, QString const& words)
{
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(what, words.toHtmlEscaped());
}

} // namespace

EmptyTableNote::EmptyTableNote(
    PackageTable::View* table, YumIO const* engine, FilterControls const& filterControls)
    : QLabel(table->viewport()),
      view(table),
      yumIO(engine),
      controls(filterControls)
{
    setTextFormat(Qt::RichText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setForegroundRole(QPalette::Text);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(this, &QLabel::linkActivated, this, &EmptyTableNote::follow);
    auto* const middle = new QVBoxLayout(view->viewport());
    middle->addWidget(this, 0, Qt::AlignCenter);
    say({reason()});
    hide();

    pause.setSingleShot(true);
    pause.setInterval(pauseTime);
    connect(&pause, &QTimer::timeout, this, &EmptyTableNote::tell);
    connect(view->model(), &QAbstractItemModel::modelReset, this, &EmptyTableNote::wait);
}

// A label that may wrap would do so long before it has to.
QSize EmptyTableNote::sizeHint() const
{
    QTextDocument lines;
    lines.setDefaultFont(font());
    lines.setDocumentMargin(0);
    lines.setHtml(text());
    return QSizeF(lines.idealWidth() + 1, lines.size().height()).toSize();
}

void EmptyTableNote::wait()
{
    hide();
    pause.start();
}

void EmptyTableNote::tell()
{
    if (view->model()->rowCount() > 0) {
        return;
    }
    if (!view->isEnabled()) {
        // The rows are being collected anew.
        pause.start();
        return;
    }
    say(QStringList{reason()} + ways());
    show();
}

void EmptyTableNote::say(QStringList const& lines)
{
    setText(lines.join(QLatin1String("<br>")));
    setAccessibleName(QTextDocumentFragment::fromHtml(text()).toPlainText());
}

// What is longer would run out of the table.
QString EmptyTableNote::shownExpression() const
{
    return fontMetrics().elidedText(
        view->expression(), Qt::ElideMiddle, Sizing::columns(this, columnsOfExpression));
}

QString EmptyTableNote::reason() const
{
    QString const state = controls.state->currentText();
    QString words;
    if (yumIO->count() == 0) {
        words = tr("There are no packages.");
    } else if (view->hasExpression()) {
        //: %1 is an expression, %2 one of the choices beside it, such as "View All"
        words = tr("Nothing matches %1 in %2.").arg(shownExpression(), state);
    } else {
        //: %1 is one of the choices above the table, such as "View Updatable"
        words = tr("There is nothing in %1.").arg(state);
    }
    bool const isSecurity = controls.state->currentIndex() == PackageTable::SecurityUpdates;
    if (isSecurity && !yumIO->details(Package::Detail::Advisory).isKnown()) {
        words += QLatin1Char(' ') + tr("The metadata of the repositories in use tells of no advisories.");
    }
    return words.toHtmlEscaped();
}

QStringList EmptyTableNote::ways() const
{
    auto const state = static_cast<PackageTable::StateFilter>(controls.state->currentIndex());
    bool const groups = controls.groups->isChecked();
    auto const matching = controls.expression->matchesCase() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    bool const hasExpression = view->hasExpression();
    // Each would take as long as the search did.
    bool const counts = controls.mode->currentIndex() == PackageTable::Filter;
    QStringList found;
    auto const offer = [&](QLatin1String link, QString const& words, qsizetype rows) {
        if (rows > 0) {
            found.append(linkTo(link, words.arg(rows)));
        }
    };
    if (counts && state != PackageTable::All) {
        QString const all = controls.state->itemText(PackageTable::All);
        //: %1 is a number of rows, %2 is "View All"
        QString const words = hasExpression ? tr("%1 match in %2") : tr("%1 in %2");
        offer(
            viewAll, words.arg(QStringLiteral("%1"), all), view->count(PackageTable::All, groups, matching));
    }
    if (counts && !groups) {
        offer(
            withGroups, hasExpression ? tr("%1 match among groups") : tr("%1 among groups"),
            view->count(state, true, matching));
    }
    if (counts && hasExpression && matching == Qt::CaseSensitive) {
        offer(withoutCase, tr("%1 match without case"), view->count(state, groups, Qt::CaseInsensitive));
    }
    if (hasExpression) {
        found.append(linkTo(withoutExpression, tr("Clear the expression")));
    }
    return found;
}

void EmptyTableNote::follow(QString const& link)
{
    if (link == viewAll) {
        controls.state->setCurrentIndex(PackageTable::All);
    } else if (link == withGroups) {
        controls.groups->setChecked(true);
    } else if (link == withoutCase) {
        controls.expression->setMatchesCase(false);
    } else {
        controls.expression->choose(QString());
    }
}
