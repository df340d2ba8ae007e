// SPDX-License-Identifier: GPL-2.0-or-later
#include "TableModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class tst_HAbstractTableModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rediscoveryResetsTheModelAndKeepsItsRows()
    {
        TableModel model({{1, 2}, {3, 4}});
        QAbstractItemModelTester const tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy const aboutToReset(&model, &QAbstractItemModel::modelAboutToBeReset);
        QSignalSpy const reset(&model, &QAbstractItemModel::modelReset);

        model.forceSortColumnRediscovery();

        QCOMPARE(aboutToReset.count(), 1);
        QCOMPARE(reset.count(), 1);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.index(1, 1).data().toInt(), 4);
    }
};

QTEST_GUILESS_MAIN(tst_HAbstractTableModel)
#include "tst_HAbstractTableModel.moc"
