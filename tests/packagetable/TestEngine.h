// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/YumIO.h"

/// An engine whose entries the test makes; no helper script runs and, unless the test starts it, no
/// interpreter either.
class TestEngine : public YumIO
{
public:
    using YumIO::entries;

    /// Appends an entry, which the engine owns.
    Package::Entry& add(QString const& name, Package::State state, Package::Kind kind = Package::Ordinary)
    {
        auto* const entry = new Package::Entry;
        entry->name = name;
        entry->state = state;
        entry->kind = kind;
        entries.append(entry);
        return *entry;
    }

    /// The list as it is between two collections.
    void drop()
    {
        qDeleteAll(entries);
        entries.clear();
    }

    /// Takes away the last row without a word to the model.
    void dropLast() { delete entries.takeLast(); }
};
