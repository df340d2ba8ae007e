// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableDescribeValue.h"

#include "widgets/Sizing.h"

#include <QRegularExpression>
#include <algorithm>

namespace PackageTable::Describe::Instance
{

namespace
{

constexpr int usualColumns = 60;         ///< characters; what is wider is wrapped
constexpr int fewestColumns = 20;        ///< and never into narrower lines
constexpr qsizetype mostLetters = 20000; ///< to be laid out time and again, as wrapping wants it

/// The text as markup with links; empty where it holds no address.
QString withLinks(QString const& text)
{
    // What ends a sentence or a bracket ends no address.
    static QRegularExpression const address(
        QStringLiteral(R"(\b(?:https?|ftp)://[^\s<>"']*[^\s<>"'.,;:!?)\]}])"));
    QString markup;
    qsizetype done = 0;
    auto found = address.globalMatch(text);
    while (found.hasNext()) {
        QRegularExpressionMatch const match = found.next();
        QString const link = match.captured().toHtmlEscaped();
        markup += text.mid(done, match.capturedStart() - done).toHtmlEscaped() +
                  QStringLiteral("<a href=\"%1\">%1</a>").arg(link);
        done = match.capturedEnd();
    }
    if (done == 0) {
        return {};
    }
    markup += text.mid(done).toHtmlEscaped();
    return QStringLiteral("<span style=\"white-space: pre-wrap\">%1</span>")
        .arg(markup.replace(u'\n', QLatin1String("<br>")));
}

} // namespace

Value::Value(QString const& text, QWidget* parentWidget)
    : QLabel(parentWidget)
{
    QString const markup = withLinks(text);
    setTextFormat(markup.isEmpty() ? Qt::PlainText : Qt::RichText);
    setText(markup.isEmpty() ? text : markup);
    Qt::TextInteractionFlags const links =
        markup.isEmpty() ? Qt::NoTextInteraction : Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard;
    setTextInteractionFlags(Qt::TextSelectableByMouse | links);
    int const width = QLabel::sizeHint().width();
    if (width > Sizing::columns(this, usualColumns) && text.size() <= mostLetters) {
        unwrapped = width;
        setWordWrap(true);
    }
}

QSize Value::sizeHint() const
{
    if (unwrapped == 0) {
        return QLabel::sizeHint();
    }
    return {unwrapped, heightForWidth(std::min(unwrapped, Sizing::columns(this, usualColumns)))};
}

QSize Value::minimumSizeHint() const
{
    if (unwrapped == 0) {
        return QLabel::minimumSizeHint();
    }
    return {Sizing::columns(this, fewestColumns), fontMetrics().lineSpacing()};
}

} // namespace PackageTable::Describe::Instance
