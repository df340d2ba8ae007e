// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

struct KeyQuestion;

/// The modal question whether a key is to be fetched, or trusted. Accepted means yes; Cancel is the default,
/// and what Escape, Return and the window's closing mean. Owned by its parent widget, GUI thread.
class KeyDialog final : public QDialog
{
    Q_OBJECT

public:
    KeyDialog(KeyQuestion const& question, QWidget* parent);
};
