// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HScrollArea.h"

#include <QProxyStyle>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

namespace
{

class Content : public QWidget
{
public:
    explicit Content(QSize hintToGive)
        : hint(hintToGive)
    {
    }
    [[nodiscard]] QSize sizeHint() const override { return hint; }

    QSize hint;
};

// Asks for one more pixel of height once it has its width, as wrapped text does.
class WrappingContent : public QWidget
{
public:
    [[nodiscard]] QSize sizeHint() const override { return {30, width() == 30 ? 41 : 40}; }
};

class FrameAroundContents : public QProxyStyle
{
public:
    int styleHint(
        StyleHint hint, QStyleOption const* option, QWidget const* widget,
        QStyleHintReturn* returned) const override
    {
        return hint == SH_ScrollView_FrameOnlyAroundContents
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    int pixelMetric(PixelMetric metric, QStyleOption const* option, QWidget const* widget) const override
    {
        return metric == PM_DefaultFrameWidth ? 7 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

QSize aroundContent(HScrollArea const& area)
{
    int const frame = area.frameWidth() * 2 + area.frameOnlyAroundContentsPixels();
    return {
        frame + area.verticalScrollBar()->sizeHint().width(),
        frame + area.horizontalScrollBar()->sizeHint().height()};
}

} // namespace

class tst_HScrollArea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallContentGetsItsSizeAndFramesAndScrollBars()
    {
        HScrollArea area(80, 24, nullptr);
        area.setWidget(new Content({40, 30}));

        QCOMPARE(area.sizeHint(), QSize(40, 30) + aroundContent(area));
    }

    void frameAroundContentsCountsTwice()
    {
        HScrollArea area(nullptr);
        FrameAroundContents style;
        area.setStyle(&style);
        area.setWidget(new Content({40, 30}));

        QCOMPARE(area.frameOnlyAroundContentsPixels(), 14);
        QCOMPARE(area.sizeHint(), QSize(40, 30) + aroundContent(area));
    }

    void charactersAndLinesLimitTheHint()
    {
        HScrollArea area(20, 5, nullptr);
        area.setWidget(new Content({5000, 5000}));

        QCOMPARE(
            area.sizeHint(), QSize(
                                 20 * area.fontMetrics().horizontalAdvance(QLatin1Char('n')),
                                 5 * area.fontMetrics().height()));
    }

    void minusOneLeavesASideUnlimited()
    {
        HScrollArea narrow(3, -1, nullptr);
        narrow.setWidget(new Content({300, 200}));
        QCOMPARE(narrow.sizeHint().width(), 3 * narrow.fontMetrics().horizontalAdvance(QLatin1Char('n')));
        QCOMPARE(narrow.sizeHint().height(), 200 + aroundContent(narrow).height());

        HScrollArea low(-1, 2, nullptr);
        low.setWidget(new Content({300, 200}));
        QCOMPARE(low.sizeHint().width(), 300 + aroundContent(low).width());
        QCOMPARE(low.sizeHint().height(), 2 * low.fontMetrics().height());
    }

    void pixelsLimitTheHint()
    {
        HScrollArea area(QSize(100, 90), nullptr);
        area.setWidget(new Content({300, 200}));

        QCOMPARE(area.sizeHint(), QSize(100, 90));
    }

    void screenLimitsTheHint()
    {
        HScrollArea area(nullptr);
        area.setWidget(new Content({50000, 50000}));
        QSize const screen = area.screen()->geometry().size();

        QCOMPARE(area.sizeHint(), QSize(screen.width() * 9 / 10, screen.height() * 9 / 10));
    }

    void emptyAreaAnswersAsTheToolkitDoes()
    {
        HScrollArea const area(80, 24, nullptr);
        QScrollArea const plain;

        QCOMPARE(area.sizeHint(), plain.sizeHint());
    }

    void forceResizeGivesTheContentItsFinalSize()
    {
        HScrollArea area(nullptr);
        area.forceResize();
        area.setWidget(new WrappingContent);
        area.widget()->resize(5, 5);

        area.forceResize();

        QCOMPARE(area.widget()->size(), QSize(30, 41));
    }
};

QTEST_MAIN(tst_HScrollArea)
#include "tst_HScrollArea.moc"
