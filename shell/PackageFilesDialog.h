// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QStringList>

class QLabel;
class QPlainTextEdit;
class QPushButton;

/// Asks for package files, a path or an address a line. Made for one question by the main window; GUI thread.
class PackageFilesDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit PackageFilesDialog(QWidget* parent);

    /// Behind an agreement: absolute paths and addresses.
    [[nodiscard]] QStringList words() const { return named; }

private:
    void browse();
    /// Reads the lines, and says which of them names nothing that can be opened.
    void read();

    QPlainTextEdit* edit = nullptr;
    QLabel* fault = nullptr;
    QPushButton* openButton = nullptr;
    QStringList named;
};
