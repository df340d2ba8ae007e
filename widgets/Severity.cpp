// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/Severity.h"

#include <QStyle>
#include <QWidget>

void SeveritySigns::take(QWidget const* widget)
{
    QStyle const* const style = widget->style();
    critical = style->standardIcon(QStyle::SP_MessageBoxCritical, nullptr, widget);
    warning = style->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, widget);
    information = style->standardIcon(QStyle::SP_MessageBoxInformation, nullptr, widget);
}

QIcon SeveritySigns::of(Severity severity) const
{
    switch (severity) {
    case Severity::Critical:
        return critical;
    case Severity::Important:
    case Severity::Moderate:
        return warning;
    case Severity::Low:
        return information;
    case Severity::Unknown:
        break;
    }
    return {};
}
