// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableDescribeDialog.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableDescribeInstanceArea.h"
#include "widgets/Fonts.h"
#include "widgets/HScrollArea.h"
#include "widgets/HSeparator.h"
#include "widgets/Sizing.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace PackageTable::Describe
{

Dialog::Dialog(QWidget* parent)
    : QDialog(parent),
      contentLayout(new QHBoxLayout),
      closeButton(new QPushButton(tr("Close"), this)),
      backButton(new QPushButton(tr("Back"), this))
{
    setWindowTitle(tr("VEM Package Description"));
    setAttribute(Qt::WA_ShowModal);
    connect(closeButton, &QPushButton::clicked, this, &Dialog::accept);

    backButton->setToolTip(tr("Go back to the package described before"));
    backButton->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    // Return closes.
    backButton->setAutoDefault(false);
    backButton->hide();
    connect(backButton, &QPushButton::clicked, this, &Dialog::goBack);

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(backButton);
    buttons->addStretch(1);
    buttons->addWidget(closeButton);

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(contentLayout);
    layout->addLayout(buttons);
}

Dialog::~Dialog()
{
    dropContent();
}

void Dialog::config(YumIO* engine, Package::Entry const& entry, YumConfIO* configuration)
{
    dropContent();
    yumIO = engine;
    yumConfIO = configuration;
    relations = std::make_unique<Relations>(engine);
    buildContent(entry);
    // The size of the description before would stay otherwise, as well as the layout's idea of it. The
    // toolkit's own adjusting stops at two thirds of the screen, which leaves installed versions a line each.
    ensurePolished();
    QDialog::layout()->activate();
    resize(sizeHint().boundedTo(Sizing::screenLimit(this)));
}

void Dialog::buildContent(Package::Entry const& entry)
{
    described = &entry;
    backButton->setVisible(!trail.isEmpty());
    content = new QWidget(this);
    auto* const layout = new QVBoxLayout;
    auto* const name = new QLabel(yumIO->getName(entry), content);
    name->setTextFormat(Qt::PlainText);
    name->setFont(Fonts::makeHeader(name->font()));
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addWidget(new HSeparator(content));
    areas.append(new Instance::Area(this, layout, yumIO, entry, yumConfIO, true));
    areas.last()->addSections(*relations);
    for (Package::Entry const* link = entry.installed; link; link = link->installed) {
        layout->addWidget(new HSeparator(content));
        areas.append(new Instance::Area(this, layout, yumIO, *link, yumConfIO, false));
    }
    content->setLayout(layout);
    contentLayout->addWidget(content);
}

void Dialog::follow(Package::Entry const* entry)
{
    // The link that was followed is part of the content.
    QMetaObject::invokeMethod(
        this, [this, entry] { leaveFor(*entry); }, Qt::QueuedConnection);
}

void Dialog::leaveFor(Package::Entry const& entry)
{
    if (!ready || !relations) {
        return;
    }
    if (!yumIO->buildHostAtHand(entry)) {
        setReady(false);
        yumIO->collectBuildHost(entry);
        setReady(true);
    }
    trail.append({described, areas.first()->openSections()});
    showOther(entry);
}

void Dialog::goBack()
{
    if (ready && !trail.isEmpty()) {
        Left const left = trail.takeLast();
        showOther(*left.entry);
        areas.first()->openSections(left.open);
    }
}

// A dialog that shrinks and grows with each step would be hard to follow.
void Dialog::showOther(Package::Entry const& entry)
{
    dropAreas();
    buildContent(entry);
    content->show();
    closeButton->setFocus();
    QDialog::layout()->activate();
    resize(sizeHint().expandedTo(size()).boundedTo(Sizing::screenLimit(this).expandedTo(size())));
}

void Dialog::dropContent()
{
    dropAreas();
    described = nullptr;
    trail.clear();
    relations.reset();
}

void Dialog::dropAreas()
{
    if (content) {
        contentLayout->removeWidget(content);
        delete std::exchange(content, nullptr);
    }
    qDeleteAll(std::exchange(areas, {}));
}

void Dialog::setVisible(bool visible)
{
    if (!visible) {
        dropContent();
    }
    QDialog::setVisible(visible);
}

// Lists that go on below the dialog's edge are read without a mouse, wherever the keyboard is.
void Dialog::keyPressEvent(QKeyEvent* event)
{
    if (areas.isEmpty()) {
        QDialog::keyPressEvent(event);
        return;
    }
    auto const holdsFocus = [](Instance::Area const* area) {
        return area->scroll()->isAncestorOf(QApplication::focusWidget());
    };
    auto const found = std::ranges::find_if(areas, holdsFocus);
    QScrollBar* const bar = (found == areas.end() ? areas.first() : *found)->scroll()->verticalScrollBar();
    switch (event->key()) {
    case Qt::Key_PageUp:
        bar->triggerAction(QScrollBar::SliderPageStepSub);
        break;
    case Qt::Key_PageDown:
        bar->triggerAction(QScrollBar::SliderPageStepAdd);
        break;
    case Qt::Key_Home:
        bar->triggerAction(QScrollBar::SliderToMinimum);
        break;
    case Qt::Key_End:
        bar->triggerAction(QScrollBar::SliderToMaximum);
        break;
    default:
        QDialog::keyPressEvent(event);
    }
}

void Dialog::setReady(bool isReady)
{
    if (!isReady) {
        focusWhenReady = focusWidget();
    }
    ready = isReady;
    closeButton->setEnabled(ready);
    backButton->setEnabled(ready);
    for (Instance::Area* const area : std::as_const(areas)) {
        area->setButtonsEnabled(ready);
    }
    if (ready && focusWhenReady) {
        focusWhenReady->setFocus();
    }
}

void Dialog::closeEvent(QCloseEvent* event)
{
    if (ready) {
        QDialog::closeEvent(event);
    } else {
        event->ignore();
    }
}

void Dialog::done(int result)
{
    if (ready) {
        QDialog::done(result);
    }
}

} // namespace PackageTable::Describe
