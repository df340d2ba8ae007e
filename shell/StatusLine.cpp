// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/StatusLine.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableMarks.h"
#include "widgets/SignLabel.h"
#include "widgets/Sizing.h"

#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <cstdlib>

namespace
{

/// Gives way to its neighbours: the window keeps its width, whatever stands here.
class YieldingLabel final : public QLabel
{
public:
    using QLabel::QLabel;

    [[nodiscard]] QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        style()->drawItemText(
            &painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()), foregroundRole());
    }
};

} // namespace

/// Words that are a link. Where the line is too short for them, their beginning, and all in the tool tip.
class StatusLine::Link final : public QLabel
{
public:
    explicit Link(QWidget* parent)
        : QLabel(parent)
    {
        setTextFormat(Qt::RichText);
        setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        hide();
    }

    void setWords(QString const& newWords)
    {
        words = newWords;
        setAccessibleName(words);
        tell(words);
        whole = QLabel::sizeHint();
        updateGeometry();
    }

    /// To be called once the line is laid out.
    void fit()
    {
        bool const fits = width() >= whole.width();
        tell(fits ? words : fontMetrics().elidedText(words, Qt::ElideRight, width()));
        setToolTip(fits ? QString() : words);
    }

    [[nodiscard]] QSize sizeHint() const override { return whole; }
    [[nodiscard]] QSize minimumSizeHint() const override { return whole; }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QLabel::resizeEvent(event);
        fit();
    }

    void changeEvent(QEvent* event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
            setWords(words);
        }
    }

private:
    void tell(QString const& shown)
    {
        QString const link = QStringLiteral("<a href=\"more\">%1</a>").arg(shown.toHtmlEscaped());
        if (text() != link) {
            setText(link);
        }
    }

    QString words;
    QSize whole; ///< the size that they take
};

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent),
      rows(new QLabel(this)),
      selected(new QLabel(this)),
      marks(new Link(this)),
      sign(new SignLabel(QStyle::SP_MessageBoxWarning, QStyle::PM_SmallIconSize, this)),
      warning(new QLabel(this)),
      incomplete(new Link(this)),
      age(new YieldingLabel(this)),
      looking(new QLabel(tr("Looking only"), this))
{
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    for (QLabel* const label : {rows, selected, warning, age}) {
        label->setTextFormat(Qt::PlainText);
    }
    // The sign may be higher than the letters.
    QSizePolicy keepsPlace = sign->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    sign->setSizePolicy(keepsPlace);
    // Not wider for what somebody writes: the window keeps its width.
    warning->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    line->addWidget(rows);
    line->addWidget(selected);
    line->addWidget(marks);
    line->addWidget(sign);
    line->addWidget(warning, 1);
    line->addWidget(incomplete);
    line->addWidget(age);
    line->addWidget(looking);
    connect(marks, &QLabel::linkActivated, this, &StatusLine::marksWanted);
    connect(incomplete, &QLabel::linkActivated, this, &StatusLine::incompleteWanted);
    incomplete->setWords(tr("Incomplete Table"));
    constexpr int everyMinute = 60000;
    ageing.setInterval(everyMinute);
    connect(&ageing, &QTimer::timeout, this, &StatusLine::tellAge);
    ageing.start();
    setLooking(QString());
    setRepositoryTimes({});
    setSelected(0);
    setWarning(QString());
}

QSize StatusLine::minimumSizeHint() const
{
    QSize const hint = QWidget::minimumSizeHint();
    return {std::min(hint.width(), Sizing::screenLimit(this).width()), hint.height()};
}

bool StatusLine::event(QEvent* event)
{
    bool const handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        marks->fit();
        incomplete->fit();
    }
    return handled;
}

void StatusLine::setRows(qsizetype shown, qsizetype all)
{
    rows->setText(tr("%1 of %2 shown").arg(shown).arg(all));
}

void StatusLine::setSelected(qsizetype count)
{
    selected->setText(tr("%1 selected").arg(count));
    selected->setVisible(count > 0);
}

void StatusLine::setMarks(PackageTable::MarkCounts const& counts)
{
    QStringList kinds;
    auto const add = [&kinds](qsizetype count, QString const& one, QString const& several) {
        if (count > 0) {
            kinds.append(count == 1 ? one : several.arg(count));
        }
    };
    add(counts.installs, tr("1 install"), tr("%1 installs"));
    add(counts.updates, tr("1 update"), tr("%1 updates"));
    add(counts.removals, tr("1 removal"), tr("%1 removals"));
    //: %1 is a number, %2 something like "2 installs, 1 removal"
    QString words = tr("%1 marked: %2").arg(QString::number(counts.all()), kinds.join(QLatin1String(", ")));
    if (counts.bytes > 0) {
        //: %1 is the sentence about marks, %2 a size
        words = tr("%1; %2 to download").arg(words, YumIO::bytesFormat(counts.bytes));
    }
    if (counts.onDisk && *counts.onDisk != 0) {
        QString const size = YumIO::bytesFormat(static_cast<unsigned long long>(std::abs(*counts.onDisk)));
        //: %1 is the sentence about marks, %2 a size
        words = (*counts.onDisk > 0 ? tr("%1, %2 more on the disk") : tr("%1, %2 less on the disk"))
                    .arg(words, size);
    }
    marks->setWords(words);
    marks->setVisible(!kinds.isEmpty());
}

void StatusLine::setIncomplete(bool lacks)
{
    incomplete->setVisible(lacks);
}

void StatusLine::setRepositoryTimes(QMap<QString, qint64> const& times)
{
    oldest = 0;
    QStringList lines;
    for (auto time = times.begin(); time != times.end(); ++time) {
        oldest = oldest == 0 ? *time : std::min(oldest, *time);
        lines.append(QStringLiteral("%1: %2").arg(time.key(), YumIO::timeFormat(*time)));
    }
    age->setToolTip(lines.join(QLatin1Char('\n')));
    tellAge();
}

void StatusLine::tellAge()
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    qint64 const seconds = QDateTime::currentSecsSinceEpoch() - oldest;
    QString words;
    auto const tell = [&](qint64 unit, QString const& one, QString const& several) {
        qint64 const count = seconds / unit;
        words = count == 1 ? one : several.arg(count);
    };
    if (seconds < minute) {
        words = tr("Repositories read just now");
    } else if (seconds < hour) {
        tell(minute, tr("Repositories read 1 minute ago"), tr("Repositories read %1 minutes ago"));
    } else if (seconds < day) {
        tell(hour, tr("Repositories read 1 hour ago"), tr("Repositories read %1 hours ago"));
    } else {
        tell(day, tr("Repositories read 1 day ago"), tr("Repositories read %1 days ago"));
    }
    age->setText(words);
    age->setVisible(oldest > 0);
}

void StatusLine::setLooking(QString const& reason)
{
    looking->setToolTip(reason);
    looking->setVisible(!reason.isEmpty());
}

void StatusLine::setWarning(QString const& words)
{
    warning->setText(words);
    // All of it, where the line is too short.
    warning->setToolTip(words);
    // Nobody stops at a place where nothing is.
    warning->setTextInteractionFlags(words.isEmpty() ? Qt::NoTextInteraction : Qt::TextSelectableByMouse);
    sign->setVisible(!words.isEmpty());
}
