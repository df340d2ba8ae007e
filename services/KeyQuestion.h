// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// What the user is asked about one key that signs packages or metadata: whether to fetch it, as long as
/// nothing is known but where it is, else whether to trust it. A value, of any thread.
struct KeyQuestion
{
    QString location;      ///< the address of the key
    QString repository;    ///< the id of the repository that wants it
    QString packages;      ///< the packages that are signed with it; empty: the repository's metadata is
    QString userId;        ///< to whom it belongs, by its own words
    QString fingerprint;   ///< hexadecimal digits; empty: the key is not fetched yet
    QString keyId;         ///< the 16 hexadecimal digits by which signatures tell it
    long long created = 0; ///< seconds since 1970
    long long expires = 0; ///< the same; 0: never
    bool verified = true;  ///< whether a server has to prove its name where it can (sslverify)
};
