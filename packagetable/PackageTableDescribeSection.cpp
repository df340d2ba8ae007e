// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableDescribeSection.h"

#include "widgets/Sizing.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace PackageTable::Describe::Instance
{

namespace
{

/// Lines that are laid out, with links, in no time.
constexpr qsizetype firstPart = 100;
constexpr int usualColumns = 55; ///< characters
QLatin1String const allLink("all");

struct Words
{
    char const* title;
    char const* tip;
};

Words words(Relations::Kind kind)
{
    switch (kind) {
    case Relations::Kind::RequiredBy:
        return {
            QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Section", "Required By"),
            QT_TRANSLATE_NOOP(
                "PackageTable::Describe::Instance::Section", "Which packages require this one")};
    case Relations::Kind::RecommendedBy:
        return {
            QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Section", "Recommended By"),
            QT_TRANSLATE_NOOP(
                "PackageTable::Describe::Instance::Section", "Which packages recommend this one")};
    case Relations::Kind::SatisfiedBy:
        return {
            QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Section", "Provides What It Requires"),
            QT_TRANSLATE_NOOP(
                "PackageTable::Describe::Instance::Section", "Which packages have what this one requires")};
    case Relations::Kind::WhyInstalled:
        return {
            QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Section", "Why Installed"),
            QT_TRANSLATE_NOOP(
                "PackageTable::Describe::Instance::Section",
                "Who wanted this package, and which transaction installed it")};
    case Relations::Kind::Advisories:
        return {
            QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Section", "Advisories"),
            QT_TRANSLATE_NOOP(
                "PackageTable::Describe::Instance::Section",
                "Which advisories name this package, and whether it has what they advise")};
    case Relations::Kind::Versions:
        break;
    }
    return {
        QT_TRANSLATE_NOOP("PackageTable::Describe::Instance::Section", "Other Versions"),
        QT_TRANSLATE_NOOP(
            "PackageTable::Describe::Instance::Section",
            "All versions that are installed or that a repository has")};
}

} // namespace

Section::Section(
    Relations::Kind kindOfSection, Relations& relationsToAsk, Package::Entry const& entryToShow,
    QWidget* parentWidget)
    : QWidget(parentWidget),
      shownKind(kindOfSection),
      relations(relationsToAsk),
      entry(entryToShow),
      opener(new QToolButton(this)),
      content(new QLabel(this))
{
    QString const tip = tr(words(shownKind).tip);
    opener->setText(title());
    opener->setToolTip(tip);
    opener->setAccessibleDescription(tip);
    opener->setCheckable(true);
    opener->setAutoRaise(true);
    opener->setArrowType(Qt::RightArrow);
    opener->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    opener->setFocusPolicy(Qt::StrongFocus);
    opener->installEventFilter(this);
    connect(opener, &QToolButton::toggled, this, &Section::toggle);

    content->setTextFormat(Qt::RichText);
    content->setWordWrap(true);
    content->setTextInteractionFlags(Qt::TextBrowserInteraction);
    content->setIndent(style()->pixelMetric(QStyle::PM_IndicatorWidth));
    content->hide();
    connect(content, &QLabel::linkActivated, this, &Section::follow);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(opener, 0, Qt::AlignLeft);
    layout->addWidget(content);
}

QString Section::title() const
{
    return tr(words(shownKind).title);
}

bool Section::isOpen() const
{
    return opener->isChecked();
}

void Section::open()
{
    opener->setChecked(true);
}

QString Section::all()
{
    return relations.text(shownKind, entry);
}

// Wide enough for what it will tell.
QSize Section::sizeHint() const
{
    return QWidget::sizeHint().expandedTo({Sizing::columns(this, usualColumns), 0});
}

// Return would close the dialog.
bool Section::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == opener && event->type() == QEvent::KeyPress) {
        int const key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            opener->click();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void Section::toggle(bool opened)
{
    opener->setArrowType(opened ? Qt::DownArrow : Qt::RightArrow);
    content->setVisible(opened);
    if (opened && !filled) {
        content->setText(tr("Reading…"));
        filled = read();
        if (!filled) {
            opener->setChecked(false);
            return;
        }
    }
    if (opened) {
        reveal();
    }
}

bool Section::read()
{
    Q_EMIT reading(true);
    Relations::Answer const answer = relations.ask(shownKind, entry, firstPart);
    if (answer.told) {
        content->setText(markup(answer));
    }
    Q_EMIT reading(false);
    return answer.told;
}

QString Section::markup(Relations::Answer const& answer)
{
    QStringList lines;
    for (Relations::Line const& line : answer.lines) {
        QString text;
        for (Relations::Piece const& piece : line) {
            QString const shown = piece.text.toHtmlEscaped();
            if (piece.entry) {
                text += QStringLiteral("<a href=\"%1\">%2</a>").arg(links.size()).arg(shown);
                links.append(piece.entry);
            } else {
                text += shown;
            }
        }
        lines.append(text);
    }
    if (lines.isEmpty()) {
        lines.append(tr("None").toHtmlEscaped());
    }
    if (answer.count > answer.lines.size()) {
        lines.append(
            tr("These are the first %L1 of %L2.").arg(answer.lines.size()).arg(answer.count).toHtmlEscaped() +
            QStringLiteral(" <a href=\"%1\">%2</a>").arg(allLink, tr("Show all").toHtmlEscaped()));
    }
    // What is wrapped goes on further to the right.
    int const indent = style()->pixelMetric(QStyle::PM_IndicatorWidth);
    QString const begin = QStringLiteral("<div style=\"margin-left: %1px; text-indent: -%1px\">").arg(indent);
    return begin + lines.join(QLatin1String("</div>") + begin) + QLatin1String("</div>");
}

void Section::follow(QString const& link)
{
    if (link == allLink) {
        Q_EMIT allWanted();
        return;
    }
    qsizetype const number = link.toInt();
    if (number < links.size()) {
        Q_EMIT followed(links.at(number));
    }
}

/// Scrolls until what has been opened is in sight, or at least its beginning.
void Section::reveal()
{
    for (QWidget* above = parentWidget(); above; above = above->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(above)) {
            area->widget()->layout()->activate();
            layout()->activate();
            area->ensureWidgetVisible(content, 0, 0);
            area->ensureWidgetVisible(opener, 0, 0);
            return;
        }
    }
}

} // namespace PackageTable::Describe::Instance
