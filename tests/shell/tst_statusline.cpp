// SPDX-License-Identifier: GPL-2.0-or-later
// The line below the table by itself: what it does where there is more to tell than room.
#include "shell/StatusLine.h"

#include "packagetable/PackageTableMarks.h"
#include "tests/Eventually.h"

#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

class StatusLineTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> window;
    StatusLine* line = nullptr;

    QLabel* marks() const
    {
        for (QLabel* const label : line->findChildren<QLabel*>()) {
            if (label->accessibleName().contains(QLatin1String("marked"))) {
                return label;
            }
        }
        return nullptr;
    }

    void mark(qsizetype most)
    {
        PackageTable::MarkCounts counts;
        counts.installs = counts.updates = counts.removals = most;
        line->setMarks(counts);
    }

private Q_SLOTS:
    void init()
    {
        window = std::make_unique<QWidget>();
        line = new StatusLine(window.get());
        (new QVBoxLayout(window.get()))->addWidget(line);
        line->setRows(2, 12);
        window->resize(600, 100);
        window->show();
    }

    void marksAreToldInFullWhereTheyFit()
    {
        mark(3);
        QCoreApplication::processEvents();
        QVERIFY(marks()->text().contains(QLatin1String(">9 marked: 3 installs, 3 updates, 3 removals<")));
        QVERIFY(marks()->toolTip().isEmpty());
        QVERIFY(line->minimumSizeHint().width() > marks()->sizeHint().width());
    }

    void lettersTooLargeForTheScreenDontMakeTheWindowWider()
    {
        QFont font = window->font();
        font.setPointSizeF(font.pointSizeF() * 4);
        window->setFont(font);
        mark(1234567);
        QCoreApplication::processEvents();
        QVERIFY(marks()->sizeHint().width() > window->screen()->size().width());
        QVERIFY(window->width() <= window->screen()->size().width());
        EVENTUALLY_VERIFY(marks()->text().contains(u'…'));
        QVERIFY2(marks()->text().contains(QLatin1String(">3703701")), qPrintable(marks()->text()));
        QString const all =
            QStringLiteral("3703701 marked: 1234567 installs, 1234567 updates, 1234567 removals");
        QCOMPARE(marks()->toolTip(), all);
        QCOMPARE(marks()->accessibleName(), all);
        mark(3);
        window->setFont(QFont());
        EVENTUALLY_VERIFY(marks()->toolTip().isEmpty());
        QVERIFY(!marks()->text().contains(u'…'));
    }
};

QTEST_MAIN(StatusLineTest)
#include "tst_statusline.moc"
