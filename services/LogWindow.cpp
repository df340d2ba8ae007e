// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/LogWindow.h"

#include "services/LogLineWriter.h"
#include "widgets/HTextEdit.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMutexLocker>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>

namespace Log
{

namespace
{

constexpr int maximumLevel = 10;
constexpr int defaultLevel = 2;

/// Nanoseconds of rendering in one turn of the event loop. With the painting that it brings about, the
/// rest of the program gets its turn well before a user feels a halt.
constexpr qint64 turnShare = 10'000'000;

/// So many records are taken from the log at a time: the writers wait meanwhile, and the clock is looked
/// at in between.
constexpr int batch = 100;

QElapsedTimer startedClock()
{
    QElapsedTimer clock;
    clock.start();
    return clock;
}

} // namespace

Window::Window(EntryList& log, QWidget* owner)
    : parent(owner),
      levelBox(new QSpinBox(this)),
      entries(&log),
      textEdit(new HTextEdit(100, 24, this)),
      writer(std::make_unique<LineWriter>(*textEdit)),
      turn(new QTimer(this))
{
    setWindowTitle(tr("VEM Log"));

    textEdit->installEventFilter(this);
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
    // The toolkit ends the program with the last window that is closed, but not with one that is hidden.
    connect(close, &QPushButton::clicked, this, &Window::close);

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

    // The document tells its new size when it has been laid out, which may be a while after a line came.
    QScrollBar* const bar = textEdit->verticalScrollBar();
    connect(
        bar, &QScrollBar::valueChanged, this, [this, bar](int value) { atEnd = value >= bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this] {
        if (atEnd) {
            scrollToEnd();
        }
    });

    turn->setSingleShot(true);
    connect(turn, &QTimer::timeout, this, &Window::nextTurn);
}

Window::~Window() = default;

void Window::setVisible(bool visible)
{
    bool const wasVisible = isVisible();
    if (visible && !wasVisible) {
        following = true;
        startOver();
        appended();
        {
            QMutexLocker<QMutex> const locker(entries);
            connect(entries, &EntryList::appended, this, &Window::appended, Qt::UniqueConnection);
        }
        // What was filed while this window wasn't connected yet has told nobody.
        appended();
        atEnd = true;
        scrollToEnd();
    }
    QWidget::setVisible(visible);
    if (!visible && wasVisible) {
        {
            QMutexLocker<QMutex> const locker(entries);
            disconnect(entries, &EntryList::appended, this, &Window::appended);
        }
        following = false;
        startOver();
    }
}

void Window::startOver()
{
    shownCount = 0;
    // Dropping a long text takes its time of this turn, too.
    QElapsedTimer const clock = startedClock();
    textEdit->clear();
    spend(clock.nsecsElapsed());
}

void Window::appended()
{
    // Workers' signals that were on their way when the window was hidden still arrive.
    if (following && renderShare()) {
        letPaint();
    }
}

bool Window::renderShare()
{
    if (!isBehind()) {
        return false;
    }
    QElapsedTimer const clock = startedClock();
    qint64 const share = turnShare - (turn->isActive() ? turnSpent : 0);
    auto const threshold = static_cast<unsigned>(levelBox->value());
    while (clock.nsecsElapsed() < share && isBehind()) {
        QList<Entry> news;
        {
            QMutexLocker<QMutex> const locker(entries);
            news = entries->mid(shownCount, batch);
        }
        shownCount += static_cast<int>(news.count());
        writer->append(news, threshold);
    }
    spend(clock.nsecsElapsed());
    return true;
}

bool Window::isBehind() const
{
    QMutexLocker<QMutex> const locker(entries);
    return shownCount < entries->count();
}

void Window::spend(qint64 nanoseconds)
{
    if (!turn->isActive()) {
        turnSpent = 0;
        turn->start(0);
    }
    turnSpent += nanoseconds;
}

void Window::nextTurn()
{
    if (following) {
        renderShare();
    }
}

void Window::letPaint()
{
    // A worker that writes faster than this renders would nest one round of events in another without
    // end: what comes during a round is rendered in it and painted by it.
    if (painting) {
        return;
    }
    painting = true;
    QPointer<Window> const self(this);
    QEventLoop().processEvents(QEventLoop::ExcludeUserInputEvents);
    if (self) {
        painting = false;
    }
}

void Window::levelChanged(int)
{
    startOver();
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
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

// Lines keep the colours that they were written in.
bool Window::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == textEdit && event->type() == QEvent::PaletteChange && following) {
        startOver();
        renderShare();
    }
    return QWidget::eventFilter(watched, event);
}

void Window::scrollToEnd()
{
    QScrollBar* const bar = textEdit->verticalScrollBar();
    bar->setValue(bar->maximum());
}

} // namespace Log
