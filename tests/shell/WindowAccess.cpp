// SPDX-License-Identifier: GPL-2.0-or-later
#include "WindowAccess.h"

#include "tests/widgets/Contrast.h"
#include "widgets/Colors.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPlainTextEdit>
#include <algorithm>

namespace
{

QString kind(QAccessibleInterface& control)
{
    QObject const* const object = control.object();
    QString const type =
        object ? QString::fromLatin1(object->metaObject()->className()) : QStringLiteral("?");
    return QStringLiteral("%1 \"%2\"").arg(type, control.text(QAccessible::Name));
}

void addUnheard(QStringList& found, QAccessibleInterface& control, QWidget const& window)
{
    auto const* const widget = qobject_cast<QWidget*>(control.object());
    // The window itself may have been answered by now.
    if (widget ? widget != &window && !widget->isVisibleTo(&window) : control.state().invisible) {
        return;
    }
    // Tables don't tell it of themselves, and tabs stand for all of their widget.
    bool const takesKeys =
        widget ? widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy() : control.state().focusable;
    if (takesKeys) {
        if (control.text(QAccessible::Name).isEmpty()) {
            found.append(kind(control) + QStringLiteral(" has no name"));
        }
        if (widget && !widget->toolTip().isEmpty() && control.text(QAccessible::Description).isEmpty()) {
            found.append(kind(control) + QStringLiteral(" has no description"));
        }
    }
    // Rows and items tell what they hold.
    switch (control.role()) {
    case QAccessible::Table:
    case QAccessible::Tree:
    case QAccessible::List:
    case QAccessible::ComboBox:
        return;
    default:
        break;
    }
    for (int at = 0; at < control.childCount(); ++at) {
        if (QAccessibleInterface* const child = control.child(at)) {
            addUnheard(found, *child, window);
        }
    }
}

QString ratioOf(QString const& text, QColor const& words, QColor const& ground)
{
    return QStringLiteral("\"%1\": %2 on %3 is %4")
        .arg(text, words.name(), ground.name())
        .arg(Contrast::ratio(words, ground), 0, 'f', 1);
}

void addFaint(QStringList& found, QString const& text, QColor const& words, QColor const& ground)
{
    if (Contrast::ratio(words, ground) < Contrast::legible) {
        found.append(ratioOf(text, words, ground));
    }
}

QColor commonest(QImage const& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    auto const most = std::max_element(counts.cbegin(), counts.cend());
    return QColor(most.key());
}

/// The pixel of the line that stands out most.
QColor clearest(QImage const& picture, int y, QColor const& ground)
{
    QColor best = ground;
    for (int x = 0; x < picture.width(); ++x) {
        QColor const pixel = picture.pixelColor(x, y);
        if (Contrast::ratio(pixel, ground) > Contrast::ratio(best, ground)) {
            best = pixel;
        }
    }
    return best;
}

/// Looks at each line of the text, which ground parts from the next, as it was painted.
void addFaintLines(QStringList& found, QImage const& picture, QLabel const& label)
{
    QColor const ground = commonest(picture);
    constexpr int leastHeight = 5; ///< of letters; lower is an underline or a speck
    QColor best = ground;
    int height = 0;
    for (int y = 0; y <= picture.height(); ++y) {
        QColor const line = y < picture.height() ? clearest(picture, y, ground) : ground;
        if (line != ground) {
            ++height;
            best = Contrast::ratio(line, ground) > Contrast::ratio(best, ground) ? line : best;
            continue;
        }
        if (height >= leastHeight) {
            addFaint(found, label.text(), best, ground);
        }
        best = ground;
        height = 0;
    }
    if (label.text().contains(QLatin1String("<a "))) {
        addFaint(found, label.text(), QGuiApplication::palette().color(QPalette::Link), ground);
    }
}

template <typename Widget>
QList<Widget*> shown(QWidget& window)
{
    QList<Widget*> found;
    for (Widget* const widget : window.findChildren<Widget*>()) {
        if (widget->window() == &window && widget->isEnabled() && widget->isVisibleTo(&window)) {
            found.append(widget);
        }
    }
    return found;
}

/// The part of the widget that isn't scrolled away, in places of the window.
QRect inSight(QWidget const& widget, QWidget const& window)
{
    QRect seen(widget.mapTo(&window, QPoint()), widget.size());
    for (QWidget const* above = widget.parentWidget(); above && above != &window;
         above = above->parentWidget()) {
        seen &= QRect(above->mapTo(&window, QPoint()), above->size());
    }
    return seen;
}

} // namespace

QStringList WindowAccess::unheard(QWidget& window)
{
    QStringList found;
    if (QAccessibleInterface* const top = QAccessible::queryAccessibleInterface(&window)) {
        addUnheard(found, *top, window);
    } else {
        found.append(QStringLiteral("The window can't be heard"));
    }
    return found;
}

QStringList WindowAccess::faint(QWidget& window)
{
    QStringList found;
    QImage picture = window.grab().toImage();
    qreal const scale = picture.devicePixelRatio();
    picture.setDevicePixelRatio(1);
    for (QLabel const* const label : shown<QLabel>(window)) {
        // On light ground the system's colours are what they have always been.
        QColor const words = label->palette().color(QPalette::WindowText);
        bool const isOwn = words == QColor(Colors::error()) || words == QColor(Colors::warning()) ||
                           words == QColor(Colors::ok());
        QRect const seen = inSight(*label, window);
        if (!label->text().isEmpty() && !isOwn && !seen.isEmpty()) {
            QRectF const place(QPointF(seen.topLeft()) * scale, QSizeF(seen.size()) * scale);
            addFaintLines(found, picture.copy(place.toAlignedRect()), *label);
        }
    }
    for (QAbstractButton const* const button : shown<QAbstractButton>(window)) {
        QPalette const colours = button->palette();
        addFaint(found, button->text(), colours.color(QPalette::ButtonText), colours.color(QPalette::Button));
    }
    auto const addPlaceholder = [&found](QString const& text, QPalette const& colours) {
        QColor const ground = colours.color(QPalette::Base);
        if (!text.isEmpty()) {
            addFaint(
                found, text, Contrast::blended(colours.color(QPalette::PlaceholderText), ground), ground);
        }
    };
    for (QLineEdit const* const edit : shown<QLineEdit>(window)) {
        addPlaceholder(edit->placeholderText(), edit->palette());
    }
    for (QPlainTextEdit const* const edit : shown<QPlainTextEdit>(window)) {
        addPlaceholder(edit->placeholderText(), edit->palette());
    }
    return found;
}
