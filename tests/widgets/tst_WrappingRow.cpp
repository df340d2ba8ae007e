// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/WrappingRow.h"

#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

namespace
{

constexpr int spacing = 10;
constexpr int high = 20;

class Box : public QWidget
{
public:
    Box(int hintToGive, int minimumToGive, QWidget* parent)
        : QWidget(parent),
          hint(hintToGive),
          minimum(minimumToGive)
    {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }
    [[nodiscard]] QSize sizeHint() const override { return {hint, high}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {minimum, high}; }

    int hint;
    int minimum;
};

/// Boxes of 100, 200 and 300 pixels in a row, with something below that takes all other room.
struct Window : QWidget
{
    explicit Window(bool stretches = false)
    {
        auto* const column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addLayout(row);
        column->addWidget(rest, 1);
        row->setSpacing(spacing);
        for (int const width : {100, 200, 300}) {
            boxes.append(new Box(width, width, this));
            row->addWidget(boxes.last());
            if (stretches && width == 100) {
                row->addStretch(1);
            }
        }
    }

    QList<QRect> places(QSize size)
    {
        resize(size);
        layout()->invalidate();
        layout()->activate();
        QList<QRect> found;
        for (QWidget const* const box : boxes) {
            found.append(box->geometry());
        }
        return found;
    }

    WrappingRow* row = new WrappingRow;
    QWidget* rest = new QWidget(this);
    QList<Box*> boxes;
};

constexpr int oneLine = 100 + 200 + 300 + 2 * spacing;

} // namespace

class tst_WrappingRow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wideEnoughItIsAPlainRow()
    {
        Window window(true);
        Window plain(true);
        // The same in the toolkit's own row.
        auto* const own = new QHBoxLayout;
        own->setSpacing(spacing);
        while (QLayoutItem* const item = plain.row->takeAt(0)) {
            own->addItem(item);
        }
        own->setStretch(1, 1);
        static_cast<QVBoxLayout*>(plain.layout())->insertLayout(0, own);
        for (int const width : {oneLine + spacing, 700, 1000}) {
            QCOMPARE(window.places({width, 300}), plain.places({width, 300}));
            QCOMPARE(window.rest->geometry(), plain.rest->geometry());
        }
        QCOMPARE(window.sizeHint(), plain.sizeHint());
    }

    void narrowerItGoesOnInASecondLine()
    {
        Window window;
        QCOMPARE(
            window.places({oneLine - 1, 300}),
            (QList<QRect>{{0, 0, 100, high}, {110, 0, 200, high}, {0, high + spacing, 300, high}}));
        QCOMPARE(window.rest->geometry().top(), 2 * high + spacing);
        QCOMPARE(
            window.places({300, 300}),
            (QList<QRect>{
                {0, 0, 100, high}, {0, high + spacing, 200, high}, {0, 2 * (high + spacing), 300, high}}));
        QCOMPARE(window.rest->geometry().top(), 3 * high + 2 * spacing);
    }

    void widerAgainItIsOneLineAgain()
    {
        Window window;
        QList<QRect> const before = window.places({oneLine, 300});
        QCOMPARE(before.last().top(), 0);
        QVERIFY(window.places({oneLine - 1, 300}).last().top() > 0);
        QCOMPARE(window.places({oneLine, 300}), before);
        // So it is when contents get narrower in a window that keeps its size.
        window.places({500, 300});
        window.boxes.last()->hint = window.boxes.last()->minimum = 150;
        window.boxes.last()->updateGeometry();
        window.layout()->activate();
        QCOMPARE(window.boxes.last()->geometry().top(), 0);
        QCOMPARE(window.rest->geometry().top(), high);
    }

    void whatFollowsAStretchStaysAtTheFarEnd()
    {
        Window window(true);
        QCOMPARE(
            window.places({500, 300}),
            (QList<QRect>{{0, 0, 100, high}, {300, 0, 200, high}, {200, high + spacing, 300, high}}));
        QCOMPARE(window.places({300, 300}).at(1), QRect(100, high + spacing, 200, high));
    }

    void whatWantsMoreRoomGetsTheRestOfItsLine()
    {
        Window window;
        window.boxes.at(1)->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        QCOMPARE(window.places({500, 300}).at(1), QRect(110, 0, 390, high));
    }

    void itRunsFromRightToLeft()
    {
        Window window(true);
        window.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(
            window.places({500, 300}),
            (QList<QRect>{{400, 0, 100, high}, {0, 0, 200, high}, {0, high + spacing, 300, high}}));
    }

    void itNeedsItsWidestItemAlone()
    {
        Window window;
        window.boxes.at(0)->minimum = 10;
        QCOMPARE(window.row->minimumSize(), QSize(300, high));
        QCOMPARE(window.minimumSizeHint().width(), 300);
        QCOMPARE(window.row->sizeHint(), QSize(oneLine, high));
        QVERIFY(window.row->fits(oneLine - 90));
        QVERIFY(!window.row->fits(oneLine - 91));
    }

    // An item that may be narrower than it likes is, before a second line begins.
    void nothingWrapsThatCanBeNarrower()
    {
        Window window;
        window.boxes.at(2)->minimum = 50;
        QCOMPARE(window.places({oneLine - 250, 300}).last(), QRect(320, 0, 50, high));
    }

    void whatIsHiddenTakesNoRoom()
    {
        Window window;
        window.boxes.at(2)->hide();
        QCOMPARE(window.places({310, 300}).at(1), QRect(110, 0, 200, high));
        QCOMPARE(window.rest->geometry().top(), high);
        QCOMPARE(window.row->minimumSize().width(), 200);
    }

    void heightFollowsWidth()
    {
        Window window;
        QVERIFY(window.row->hasHeightForWidth());
        QCOMPARE(window.row->heightForWidth(oneLine), high);
        QCOMPARE(window.row->heightForWidth(oneLine - 1), 2 * high + spacing);
        QCOMPARE(window.row->minimumHeightForWidth(309), 3 * high + 2 * spacing);
        window.row->setContentsMargins(1, 2, 3, 4);
        QCOMPARE(window.row->heightForWidth(oneLine + 4), high + 6);
        QCOMPARE(window.row->heightForWidth(oneLine + 3), 2 * high + spacing + 6);
    }
};

QTEST_MAIN(tst_WrappingRow)
#include "tst_WrappingRow.moc"
