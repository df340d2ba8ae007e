// SPDX-License-Identifier: GPL-2.0-or-later
#include "advisories/AdvisoriesWindow.h"

#include "advisories/AdvisoriesModel.h"
#include "advisories/AdvisoriesPackagesModel.h"
#include "advisories/AdvisoriesReader.h"
#include "engine/YumIO.h"
#include "matters/Moments.h"
#include "widgets/ListTable.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>

namespace Advisories
{

namespace
{

// Whatever else metadata calls an address is not for a browser to open.
bool isOfTheWeb(QString const& address)
{
    static QStringList const schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("ftp")};
    return schemes.contains(QUrl(address, QUrl::StrictMode).scheme());
}

} // namespace

Window::Window(YumIO* engine, QWidget* parent)
    : MatterWindow(QStringLiteral("advisories"), engine, parent),
      reader(new Reader(engine, this)),
      model(new Model(this)),
      proxy(new Proxy(model, this)),
      packagesModel(new PackagesModel(this))
{
    setWindowTitle(tr("Advisories"));
    build();
    begin(table, reader);
}

bool Window::offered(YumIO const& yumIO)
{
    return Reader::offered(yumIO);
}

void Window::takeLooks()
{
    model->setLooks(this);
    packagesModel->setFont(font());
}

void Window::readAll()
{
    QString const identifier = currentIdentifier();
    auto const list = reader->all();
    told = list.has_value();
    known = list && list->known;
    model->setAdvisories(list ? list->advisories : QList<Advisory>());
    shown.clear();
    findAndChoose(identifier);
    showChosenNow();
}

void Window::findAndChoose(QString const& identifier)
{
    proxy->show(static_cast<Proxy::Show>(showCombo->currentIndex()), searchEdit->text().trimmed());
    QModelIndex row = proxy->mapFromSource(model->index(model->rowOf(identifier), 0));
    if (!row.isValid()) {
        row = proxy->index(0, 0);
    }
    table->setCurrentIndex(row);
    showChosenSoon();
}

Advisory const* Window::current() const
{
    QModelIndex const row = table->currentIndex();
    return row.isValid() ? &model->advisory(proxy->mapToSource(row).row()) : nullptr;
}

QString Window::currentIdentifier() const
{
    Advisory const* const chosen = current();
    return chosen ? chosen->identifier : QString();
}

void Window::showChosen()
{
    QString const identifier = currentIdentifier();
    if (identifier == shown && !identifier.isEmpty()) {
        return;
    }
    Whole whole;
    shown.clear();
    if (Advisory const* const chosen = current()) {
        whole.head = *chosen;
        if (auto const read = reader->whole(identifier)) {
            whole = *read;
            shown = identifier;
        }
    }
    openNames.clear();
    for (Package const& package : whole.packages) {
        if (package.open && !openNames.contains(package.name)) {
            openNames.append(package.name);
        }
    }
    packagesModel->show(whole.packages);
    showText(whole);
}

void Window::showText(Whole const& whole)
{
    if (!current()) {
        text->setPlainText(whyNothing());
        return;
    }
    Advisory const& head = whole.head;
    QStringList facts{Words::of(head.kind), Words::severity(head), Moments::day(head.issued)};
    facts.removeAll(QString());
    QString page = QStringLiteral("<p><b>%1</b><br>%2<br>%3</p>")
                       .arg(
                           head.identifier.toHtmlEscaped(), head.title.toHtmlEscaped(),
                           facts.join(QLatin1String(", ")).toHtmlEscaped());
    if (!whole.text.isEmpty()) {
        page += QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>").arg(whole.text.toHtmlEscaped());
    }
    for (Reference const& reference : whole.references) {
        QString const title = reference.title.isEmpty() ? reference.id : reference.title;
        QString const words = (title.isEmpty() ? reference.address : title).toHtmlEscaped();
        page +=
            isOfTheWeb(reference.address)
                ? QStringLiteral("<p><a href=\"%1\">%2</a></p>").arg(reference.address.toHtmlEscaped(), words)
                : QStringLiteral("<p>%1</p>").arg(words);
    }
    text->setHtml(page);
}

QString Window::whyNothing() const
{
    if (!told) {
        // Why has been reported.
        return {};
    }
    if (!known) {
        return tr("The metadata of the repositories in use tells of no advisories.");
    }
    return model->rowCount() == 0 ? tr("No advisory is about an installed package.")
                                  : tr("No advisory fits what is to be shown.");
}

void Window::enableControls()
{
    markButton->setEnabled(isReady() && !openNames.isEmpty());
}

} // namespace Advisories
