// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/Colors.h"

#include <QColor>
#include <QPalette>

namespace
{

QPalette withText(QPalette palette, QColor const& color)
{
    palette.setColor(QPalette::WindowText, color);
    return palette;
}

} // namespace

QString Colors::required()
{
    return tr("#fffacd");
}

QString Colors::action()
{
    return tr("blue");
}

QString Colors::error()
{
    return tr("red");
}

QString Colors::errorDisabled()
{
    return tr("#ffa9b8");
}

QString Colors::warning()
{
    return tr("darkorange");
}

QString Colors::minor()
{
    return tr("#8b5a2b");
}

QString Colors::minorDisabled()
{
    return tr("#ffbd94");
}

QString Colors::ok()
{
    return tr("green");
}

QPalette Colors::makeRequired(QPalette const& palette)
{
    static QColor const color(required());
    QPalette copy(palette);
    copy.setColor(QPalette::Active, QPalette::Base, color);
    copy.setColor(QPalette::Inactive, QPalette::Base, color);
    return copy;
}

QPalette Colors::makeError(QPalette const& palette)
{
    static QColor const color(error());
    return withText(palette, color);
}

QPalette Colors::makeWarning(QPalette const& palette)
{
    static QColor const color(warning());
    return withText(palette, color);
}

QPalette Colors::makeOK(QPalette const& palette)
{
    static QColor const color(ok());
    return withText(palette, color);
}
