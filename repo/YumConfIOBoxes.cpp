// SPDX-License-Identifier: GPL-2.0-or-later
// What the configuration tells and asks the user. It stands alone so that its reading and writing can be run
// without windows.
#include "repo/YumConfIO.h"

#include <QMessageBox>

#include <cerrno>
#include <cstring>

void YumConfIO::error(QString const& message, QString const& where)
{
    int const cause = errno;
    // Composed apart from the message, which may hold anything that a file or its name holds.
    QString const suffix =
        tr("; errno = %1 (%2).").arg(QString::number(cause), QString::fromLocal8Bit(std::strerror(cause)));

    tell(message + suffix + where);
}

void YumConfIO::tell(QString const& message)
{
    QMessageBox box(
        QMessageBox::Critical, tr("VEM Repository Editor Error"), message, QMessageBox::Ok, parent);
    // A line of a file is never markup.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool YumConfIO::confirm(QString const& question)
{
    QMessageBox box(
        QMessageBox::Critical, tr("Repository Editor"), question, QMessageBox::Yes | QMessageBox::No, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}
