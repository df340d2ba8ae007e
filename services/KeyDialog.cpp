// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/KeyDialog.h"

#include "services/KeyQuestion.h"
#include "services/WrappedText.h"
#include "widgets/Colors.h"
#include "widgets/Fonts.h"
#include "widgets/SignLabel.h"
#include "widgets/Sizing.h"

#include <QDateTime>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStringList>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

constexpr qsizetype groupLength = 4;
constexpr qsizetype shortKeyLength = 8;

/// Digits in groups, as they are read out to compare them.
QString grouped(QString const& digits)
{
    QStringList groups;
    for (qsizetype at = 0; at < digits.size(); at += groupLength) {
        groups.append(digits.mid(at, groupLength));
    }
    return groups.join(u' ').toUpper();
}

QString day(long long seconds)
{
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds).date(), QLocale::LongFormat);
}

QLabel* plainLabel(QString const& text, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setText(text);
    return label;
}

/// The rows of the dialog: a name, and beside it what can be marked and copied.
class Rows final
{
public:
    explicit Rows(QWidget* dialog)
        : parent(dialog)
    {
        layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    }

    WrappedText* add(QString const& name, QString const& value)
    {
        auto* const text = new WrappedText(value, parent);
        auto* const label = new QLabel(name, parent);
        label->setTextFormat(Qt::PlainText);
        label->setBuddy(text);
        text->setAccessibleName(QString(name).remove(u':'));
        layout->addRow(label, text);
        return text;
    }

    [[nodiscard]] QFormLayout* form() const { return layout; }

private:
    QWidget* parent;
    QFormLayout* layout = new QFormLayout;
};

} // namespace

KeyDialog::KeyDialog(KeyQuestion const& question, QWidget* parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_ShowModal);
    bool const fetched = !question.fingerprint.isEmpty();
    setWindowTitle(fetched ? tr("Import Key") : tr("Fetch Key"));

    auto* const columns = new QHBoxLayout;
    auto* const sign = new SignLabel(QStyle::SP_MessageBoxWarning, QStyle::PM_MessageBoxIconSize, this);
    columns->addWidget(sign, 0, Qt::AlignTop);
    auto* const content = new QVBoxLayout;
    columns->addLayout(content, 1);

    content->addWidget(plainLabel(
        fetched
            ? tr("Is this key to be trusted? Everything that it has signed is accepted from then on. Import "
                 "it "
                 "only if you know its fingerprint from elsewhere, such as its owner's pages.")
            : tr("A key that is missing is to be fetched from the address below. Nothing is trusted yet: you "
                 "see the key before it is imported."),
        this));

    Rows rows(this);
    if (fetched) {
        rows.add(tr("User ID:"), question.userId);
        WrappedText* const fingerprint = rows.add(tr("Fingerprint:"), grouped(question.fingerprint));
        fingerprint->setFont(Fonts::makeFixed(fingerprint->font()));
        rows.add(
            tr("Key ID:"),
            tr("%1 (short: %2)")
                .arg(question.keyId.toUpper(), question.keyId.right(shortKeyLength).toUpper()));
        rows.add(tr("Created:"), day(question.created));
        rows.add(tr("Expires:"), question.expires == 0 ? tr("never") : day(question.expires));
    }
    rows.add(tr("Address:"), question.location);
    QString const scheme = QUrl(question.location).scheme();
    if (scheme.isEmpty() || scheme == QLatin1String("file")) {
        rows.add(tr("Transport:"), tr("a file of this system"));
    } else if (scheme == QLatin1String("https") && question.verified) {
        rows.add(tr("Transport:"), tr("https: encrypted, from a server that has proved its name"));
    } else {
        bool const encrypted = scheme == QLatin1String("https");
        QString const words =
            encrypted ? tr("https: encrypted, but any server may answer, since sslverify is switched off. "
                           "Anybody on the way may have exchanged the key.")
                      : tr("%1: not encrypted. Anybody on the way may have exchanged the key.").arg(scheme);
        WrappedText* const open = rows.add(tr("Transport:"), words);
        open->setFont(Fonts::makeBold(open->font()));
        open->setPalette(Colors::makeWarning(open->palette()));
    }
    rows.add(tr("Repository:"), question.repository);
    rows.add(
        tr("Signed with it:"),
        question.packages.isEmpty() ? tr("the metadata of the repository") : question.packages);
    content->addLayout(rows.form());
    content->addStretch(1);

    auto* const agree = new QPushButton(fetched ? tr("Import Key") : tr("Fetch Key"), this);
    auto* const cancel = new QPushButton(tr("Cancel"), this);
    agree->setAutoDefault(false);
    cancel->setDefault(true);
    cancel->setFocus();
    connect(agree, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(agree);
    buttons->addWidget(cancel);
    buttons->addStretch();

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addLayout(buttons);
    // The toolkit would reckon with the width that it wants, and then make the window narrower on a small
    // screen.
    QSize const limit = Sizing::screenLimit(this);
    int const width = std::min(layout->totalSizeHint().width(), limit.width());
    resize(width, std::min(layout->totalHeightForWidth(width), limit.height()));
}
