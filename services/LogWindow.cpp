// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/LogWindow.h"

#include "widgets/Colors.h"
#include "widgets/HTextEdit.h"

#include <QEventLoop>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMutexLocker>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSpinBox>
#include <QTextCursor>
#include <QVBoxLayout>

namespace Log
{

namespace
{

constexpr int maximumLevel = 10;
constexpr int defaultLevel = 2;

/// From this level up the package library's lines are debug information.
constexpr unsigned debugLevel = 10;

} // namespace

Window::Window(EntryList& log, QWidget* owner)
    : parent(owner),
      levelBox(new QSpinBox(this)),
      entries(&log),
      textEdit(new HTextEdit(100, 24, this))
{
    setWindowTitle(tr("VEM Log"));

    textEdit->setReadOnly(true);
    textEdit->setUndoRedoEnabled(false);
    textEdit->setLineWrapMode(QTextEdit::NoWrap);
    textEdit->setWordWrapMode(QTextOption::NoWrap);
    textEdit->setTabChangesFocus(true);
    textEdit->setAccessibleName(tr("Log"));
    // Blanks collapse also when they are written as character references.
    textEdit->document()->setDefaultStyleSheet(QStringLiteral("font { white-space: pre; }"));

    levelBox->setRange(0, maximumLevel);
    levelBox->setValue(defaultLevel);
    levelBox->setAccessibleName(tr("Detail level"));
    levelBox->setToolTip(tr("Threshold beyond which more detailed log messages are omitted.\n"
                            "Higher levels show more detail.\n"
                            "The valid range is 0 .. %1.\n"
                            "The default is %2.\n"
                            "Higher levels contain debug information.\n"
                            "This corresponds to yum's debuglevel (-d) option.")
                             .arg(maximumLevel)
                             .arg(defaultLevel));
    connect(levelBox, &QSpinBox::valueChanged, this, &Window::levelChanged);

    auto* const levelLabel = new QLabel(tr("Detail level"), this);
    levelLabel->setBuddy(levelBox);

    auto* const close = new QPushButton(tr("&Close"), this);
    close->setToolTip(tr("Close the Log Window"));
    connect(close, &QPushButton::clicked, this, &Window::hide);

    auto* const rows = new QVBoxLayout(this);
    auto* const lower = new QHBoxLayout;
    rows->addWidget(textEdit);
    rows->addLayout(lower);
    lower->addWidget(levelLabel);
    lower->addWidget(levelBox);
    lower->addStretch(1);
    lower->addWidget(close);
    setTabOrder(textEdit, levelBox);
    setTabOrder(levelBox, close);
}

void Window::setVisible(bool visible)
{
    bool const wasVisible = isVisible();
    if (visible && !wasVisible) {
        textEdit->clear();
        shownCount = 0;
        appended();
        {
            QMutexLocker<QMutex> const locker(entries);
            connect(entries, &EntryList::appended, this, &Window::appended);
        }
        // What was filed while this window wasn't connected yet has told nobody.
        appended();
        scrollToEnd();
    }
    QWidget::setVisible(visible);
    if (visible && !wasVisible) {
        // The window has got its size only now.
        scrollToEnd();
    }
    if (!visible && wasVisible) {
        {
            QMutexLocker<QMutex> const locker(entries);
            disconnect(entries, &EntryList::appended, this, &Window::appended);
        }
        shownCount = 0;
        textEdit->clear();
    }
}

void Window::appended()
{
    QList<Entry> news;
    {
        QMutexLocker<QMutex> const locker(entries);
        news = entries->mid(shownCount);
        shownCount = static_cast<int>(entries->count());
    }
    if (news.isEmpty()) {
        return;
    }
    render(news);

    // A worker that writes faster than this renders would nest one round of events in another without
    // end: what comes during a round is rendered in it and painted by it.
    if (!painting) {
        QScopedValueRollback<bool> const inside(painting, true);
        QEventLoop().processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

void Window::levelChanged(int)
{
    shownCount = 0;
    textEdit->clear();
    appended();
}

void Window::htmlProtect(QString& text)
{
    text.replace(u'<', QLatin1String("&lt;"));
    text.replace(u'>', QLatin1String("&gt;"));
    text.replace(u' ', QLatin1String("&#x0020;"));
    text.replace(u'\t', QLatin1String("&#x0009;"));
}

void Window::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        hide();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void Window::render(QList<Entry> const& news)
{
    auto const threshold = static_cast<unsigned>(levelBox->value());
    QString const coloured = tr("<font color=\"%1\">");
    QString const end = tr("</font>");
    QString const plain = tr("<font>");
    QString const minor = coloured.arg(Colors::minor());
    QString const output = coloured.arg(Colors::ok());
    QString const warning = coloured.arg(Colors::warning());
    QString const error = coloured.arg(Colors::error());
    QString const action = tr("<h2><font color=\"%1\">").arg(Colors::action());
    QString const actionEnd = tr("</font></h2>");

    QScrollBar const* const bar = textEdit->verticalScrollBar();
    bool const wasAtEnd = bar->value() >= bar->maximum();
    // One edit block, so that the document is laid out once and not once per line.
    QTextCursor block(textEdit->document());
    block.beginEditBlock();
    for (Entry const& entry : news) {
        if (entry.level > threshold) {
            continue;
        }
        QString text = entry.text;
        htmlProtect(text);
        switch (entry.kind) {
        case Info:
            textEdit->appendCompact((entry.level < debugLevel ? plain : minor) + text + end);
            break;
        case Output:
            textEdit->appendCompact(output + text + end);
            break;
        case Warning:
            textEdit->appendCompact(warning + text + end);
            break;
        case Action:
            textEdit->appendCompact(action + text + actionEnd);
            break;
        case Error:
        default:
            textEdit->appendCompact(error + text + end);
            break;
        }
    }
    block.endEditBlock();
    if (wasAtEnd) {
        scrollToEnd();
    }
}

void Window::scrollToEnd()
{
    QScrollBar* const bar = textEdit->verticalScrollBar();
    bar->setValue(bar->maximum());
}

} // namespace Log
