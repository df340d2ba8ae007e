// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HSeparator.h"

#include <QTest>

class tst_HSeparator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isASunkenHorizontalLine()
    {
        QWidget parent;
        auto const* const separator = new HSeparator(&parent);

        QCOMPARE(separator->frameShape(), QFrame::HLine);
        QCOMPARE(separator->frameShadow(), QFrame::Sunken);
    }
};

QTEST_MAIN(tst_HSeparator)
#include "tst_HSeparator.moc"
