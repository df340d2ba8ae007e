// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/StatusLine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent),
      rows(new QLabel(this)),
      selected(new QLabel(this)),
      sign(new QLabel(this)),
      warning(new QLabel(this))
{
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    for (QLabel* const label : {rows, selected, warning}) {
        label->setTextFormat(Qt::PlainText);
    }
    int const size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(size));
    // The sign may be higher than the letters.
    QSizePolicy keepsPlace = sign->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    sign->setSizePolicy(keepsPlace);
    // Not wider for what somebody writes: the window keeps its width.
    warning->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    warning->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->addWidget(rows);
    line->addWidget(selected);
    line->addWidget(sign);
    line->addWidget(warning, 1);
    setSelected(0);
    setWarning(QString());
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

void StatusLine::setWarning(QString const& words)
{
    warning->setText(words);
    // All of it, where the line is too short.
    warning->setToolTip(words);
    sign->setVisible(!words.isEmpty());
}
