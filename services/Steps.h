// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// The unit of all progress arithmetic: an abstract step of a job, or whatever an item counts (bytes,
/// packages). Known to the meta-type system as "Steps", so that it can travel in queued signals.
using Steps = unsigned long long;
