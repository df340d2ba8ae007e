// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HItemDelegate.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTest>

namespace
{

// The number of pixel rows on which something is drawn.
int inkedRows(HItemDelegate const& delegate, QStyleOptionViewItem::ViewItemFeatures features)
{
    QImage image(120, 120, QImage::Format_RGB32);
    image.fill(Qt::white);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.features = features;
    option.state = QStyle::State_Enabled;
    option.palette.setColor(QPalette::Text, Qt::black);
    option.displayAlignment = Qt::AlignLeft | Qt::AlignTop;
    QPainter painter(&image);
    delegate.drawDisplay(&painter, option, option.rect, QStringLiteral("word ").repeated(20));
    painter.end();
    int rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        bool inked = false;
        for (int x = 0; x < image.width() && !inked; ++x) {
            inked = image.pixelColor(x, y).lightness() < 128;
        }
        rows += inked;
    }
    return rows;
}

} // namespace

class tst_HItemDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textStaysOnOneLine()
    {
        HItemDelegate const delegate(nullptr);
        int const oneLine = inkedRows(delegate, QStyleOptionViewItem::None);

        QVERIFY(oneLine > 0);
        QCOMPARE(inkedRows(delegate, QStyleOptionViewItem::WrapText), oneLine);
    }

    void belongsToTheGivenParent()
    {
        QObject parent;
        QCOMPARE((new HItemDelegate(&parent))->parent(), &parent);
    }
};

QTEST_MAIN(tst_HItemDelegate)
#include "tst_HItemDelegate.moc"
