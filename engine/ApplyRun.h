// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bridge/PyRef.h"
#include "services/DownloadRate.h"
#include "services/TransactionDetails.h"

#include <QElapsedTimer>
#include <QSet>
#include <QString>

/// What the engine knows of one apply, on the worker; a new apply starts from a new value.
struct ApplyRun
{
    QString transactionText;                ///< the text of the confirmation dialog
    TransactionDetails details;             ///< its second page; without rows there is none
    PyRef changes;                          ///< what tells the changes, as the script gave it
    bool applyConfirmed = false;            ///< the user accepted; also the apply's result
    unsigned long long actsDone = 0;        ///< position in the present item's acts
    QSet<QString> updateNames;              ///< packages that this transaction updates
    unsigned int nPkgs = 0;                 ///< weight of the packages known to be in the transaction
    unsigned int nHdrs = 0;                 ///< how many of them need their header downloaded
    unsigned long long totalBytes = 0;      ///< sizes of what goes in
    unsigned long long downloadBytes = 0;   ///< the part of totalBytes that isn't on disk yet
    unsigned long long transactionActs = 0; ///< work units of the rpm transaction
    unsigned long long lastEventPkg = 0;    ///< ordinal of the package last seen by tsEvent
    bool deltaRebuild = false;              ///< the delta rebuild has begun
    unsigned int pkgActs = 0;               ///< acts of one solver pass
    unsigned int totalPkgActs = 0;          ///< acts of all solver passes so far
    unsigned int downloadActs = 0;          ///< progress steps given to the download phase
    unsigned long long reportedBytes = 0;   ///< what is to be fetched, as the script has told it
    bool scriptTold = false;                ///< the item bar names a package whose script runs
    DownloadRate rate;                      ///< of the packages' download
    QElapsedTimer clock;                    ///< of that rate
    qint64 rateShown = 0;                   ///< when it was told last, by that clock
};
