// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/SignLabel.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QTest>

namespace
{

/// Has signs in two sizes, and says itself which size is small.
class Signs final : public QProxyStyle
{
public:
    explicit Signs(int sideOfSmall)
        : small(sideOfSmall)
    {
    }

    int pixelMetric(PixelMetric metric, QStyleOption const* option, QWidget const* widget) const override
    {
        return metric == PM_SmallIconSize ? small : QProxyStyle::pixelMetric(metric, option, widget);
    }

    QIcon standardIcon(StandardPixmap, QStyleOption const*, QWidget const*) const override
    {
        QIcon icon;
        for (int const side : {small, small * 2}) {
            QPixmap picture(side, side);
            picture.fill(side == small ? Qt::yellow : Qt::green);
            icon.addPixmap(picture);
        }
        return icon;
    }

private:
    int small;
};

} // namespace

class tst_SignLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheSizeOfTheStyle()
    {
        Signs style(20);
        SignLabel label(QStyle::SP_MessageBoxWarning, QStyle::PM_SmallIconSize, nullptr);
        label.setStyle(&style);
        QCOMPARE(label.pixmap().deviceIndependentSize(), QSizeF(20, 20));
        Signs other(24);
        label.setStyle(&other);
        QCOMPARE(label.pixmap().deviceIndependentSize(), QSizeF(24, 24));
    }

    // The whole process has one scale: this is run again with a display of twice as many pixels.
    void isAsSharpAsTheDisplay()
    {
        Signs style(20);
        SignLabel label(QStyle::SP_MessageBoxWarning, QStyle::PM_SmallIconSize, nullptr);
        label.setStyle(&style);
        bool const fine = label.devicePixelRatioF() > 1;
        QCOMPARE(fine, qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
        QCOMPARE(label.pixmap().toImage().pixelColor(5, 5), QColor(fine ? Qt::green : Qt::yellow));
    }
};

QTEST_MAIN(tst_SignLabel)
#include "tst_SignLabel.moc"
