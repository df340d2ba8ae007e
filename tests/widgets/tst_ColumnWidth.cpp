// SPDX-License-Identifier: GPL-2.0-or-later
#include "TableModel.h"
#include "widgets/ColumnWidth.h"
#include "widgets/HItemDelegate.h"

#include <QIcon>
#include <QPixmap>
#include <QRandomGenerator>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QWidget>
#include <algorithm>

namespace
{

QStyleOptionViewItem optionsWith(QFont const& font)
{
    QWidget const widget;
    QStyleOptionViewItem options;
    options.initFrom(&widget);
    options.font = font;
    options.decorationSize = QSize(16, 16);
    return options;
}

QIcon iconOf(int width)
{
    QPixmap pixmap(width, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

class CountingDelegate : public HItemDelegate
{
public:
    using HItemDelegate::HItemDelegate;

    [[nodiscard]] QSize sizeHint(
        QStyleOptionViewItem const& /*option*/, QModelIndex const& index) const override
    {
        return {index.row() == 1 ? 500 : 100, 10};
    }
};

std::string_view lettersOf(QByteArray const& text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

int widestText(ColumnWidth const& width, TableModel const& model)
{
    QByteArrayList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, 0).data().toString().toUtf8());
    }
    return width.widestText(
        model.rowCount(), [&](int row) { return lettersOf(texts.at(row)); },
        [&](int row) { return model.index(row, 0); });
}

QString randomText(QRandomGenerator& random, QString const& alphabet, int longest)
{
    QString text;
    int const length = random.bounded(longest + 1);
    for (int i = 0; i < length; ++i) {
        text.append(alphabet.at(random.bounded(static_cast<int>(alphabet.size()))));
    }
    return text;
}

/// The row that holds the text.
qsizetype cellOf(TableModel::Rows const& rows, QString const& text)
{
    return std::find_if(rows.begin(), rows.end(), [&](auto const& row) { return row.at(0) == text; }) -
           rows.begin();
}

} // namespace

class tst_ColumnWidth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheWidthOfTheFullWalk_data();
    void findsTheWidthOfTheFullWalk();
    void textOnlyFindsTheWidthOfTheFullWalk();
    void findsTheOneWidestAmongManyRows_data();
    void findsTheOneWidestAmongManyRows();
    void countsEverythingThatACellShows();
    void iconWidensANarrowerText();
    void noRowsNeedNoWidth();
    void asksAnotherDelegateForEachCell();
};

void tst_ColumnWidth::findsTheWidthOfTheFullWalk_data()
{
    QTest::addColumn<QString>("alphabet");
    QTest::addColumn<int>("longest");
    QTest::addColumn<QFont>("font");

    QFont slanted(QStringLiteral("DejaVu Serif"), 17);
    slanted.setItalic(true);
    QFont const fonts[] = {
        QFont(), QFont(QStringLiteral("DejaVu Sans"), 7), slanted,
        QFont(QStringLiteral("DejaVu Sans Mono"), 11), QFont(QStringLiteral("Nimbus Roman"), 13)};
    for (QFont const& font : fonts) {
        QByteArray const name = font.toString().toUtf8();
        auto const row = [&](char const* what, QString const& alphabet, int longest) {
            QTest::newRow((name + ' ' + what).constData()) << alphabet << longest << font;
        };
        row("names", QStringLiteral("abcdefghijklmnopqrstuvwxyz-0123456789"), 40);
        row("versions", QStringLiteral("0123456789.-~:"), 12);
        row("kerning", QStringLiteral("AVTWYLPFo,. \"'rf"), 30);
        row("narrow and wide", QStringLiteral("ilWM"), 20);
        row("ligatures", QStringLiteral("fil"), 25);
        row("beyond ASCII", QString::fromUtf8("aé漢ß\tعн\n"), 15);
    }
}

void tst_ColumnWidth::findsTheWidthOfTheFullWalk()
{
    QFETCH(QString, alphabet);
    QFETCH(int, longest);
    QFETCH(QFont, font);
    HItemDelegate const delegate(nullptr);
    QStyleOptionViewItem const options = optionsWith(font);
    ColumnWidth const width(delegate, options);

    for (quint32 seed = 1; seed <= 8; ++seed) {
        QRandomGenerator random(seed);
        TableModel::Rows rows;
        for (int row = 0; row < 200; ++row) {
            rows.append({randomText(random, alphabet, longest)});
        }
        TableModel const model(rows);
        int const walked = width.walked(model, {}, 0);
        QCOMPARE(width.widest(model, {}, 0), walked);
        QCOMPARE(widestText(width, model), walked);
    }
}

void tst_ColumnWidth::textOnlyFindsTheWidthOfTheFullWalk()
{
    HItemDelegate const delegate(nullptr);
    QStyleOptionViewItem const options = optionsWith(QFont());
    ColumnWidth const width(delegate, options);
    TableModel const model({{QString()}, {QStringLiteral("123456")}, {QStringLiteral("")}, {QString()}});

    QCOMPARE(widestText(width, model), width.walked(model, {}, 0));
    QCOMPARE(widestText(width, TableModel({})), 0);
    QVERIFY(widestText(width, TableModel({{QString()}})) == width.walked(TableModel({{QString()}}), {}, 0));
}

void tst_ColumnWidth::findsTheOneWidestAmongManyRows_data()
{
    findsTheWidthOfTheFullWalk_data();
}

// So many rows that several processors look at them, most of which share their texts.
void tst_ColumnWidth::findsTheOneWidestAmongManyRows()
{
    QFETCH(QString, alphabet);
    QFETCH(int, longest);
    QFETCH(QFont, font);
    HItemDelegate const delegate(nullptr);
    QStyleOptionViewItem const options = optionsWith(font);
    ColumnWidth const width(delegate, options);
    QRandomGenerator random(7);
    QStringList shared;
    for (int number = 0; number < 400; ++number) {
        shared.append(randomText(random, alphabet, longest));
    }
    QStringList texts;
    for (int row = 0; row < 9000; ++row) {
        texts.append(shared.at(random.bounded(static_cast<int>(shared.size()))));
    }
    QByteArrayList letters;
    QHash<QString, QByteArray> sharedLetters;
    for (QString const& text : texts) {
        QByteArray& known = sharedLetters[text];
        if (known.isNull()) {
            known = text.toUtf8();
        }
        letters.append(known);
    }
    TableModel::Rows rows;
    for (QString const& text : shared) {
        rows.append({text});
    }
    for (int const place : {0, 4500, 8999}) {
        // As long as the longest and one of a kind: it may be the widest, or not by a hair.
        QString const last = randomText(random, alphabet, 1) + randomText(random, alphabet, longest) +
                             randomText(random, alphabet, longest);
        texts[place] = last;
        letters[place] = last.toUtf8();
        rows.append({last});
        TableModel const model(rows);
        int const widest = width.widestText(
            static_cast<int>(texts.size()), [&](int row) { return lettersOf(letters.at(row)); },
            [&](int row) { return model.index(static_cast<int>(cellOf(rows, texts.at(row))), 0); });
        int walked = 0;
        for (int row = 0; row < model.rowCount(); ++row) {
            if (texts.contains(model.index(row, 0).data().toString())) {
                walked = std::max(walked, delegate.sizeHint(options, model.index(row, 0)).width());
            }
        }
        QCOMPARE(widest, walked);
    }
}

void tst_ColumnWidth::countsEverythingThatACellShows()
{
    HItemDelegate const delegate(nullptr);
    QFont large;
    large.setPointSize(40);
    QPixmap pixmap(200, 16);
    pixmap.fill(Qt::blue);
    QMap<int, QVariant> const decorations[] = {
        {{Qt::DecorationRole, iconOf(16)}},      {{Qt::DecorationRole, QIcon()}},
        {{Qt::DecorationRole, pixmap}},          {{Qt::DecorationRole, QColor(Qt::red)}},
        {{Qt::CheckStateRole, Qt::Checked}},     {{Qt::FontRole, large}},
        {{Qt::SizeHintRole, QSize(999, 5)}},     {{Qt::DecorationRole, iconOf(16)}, {Qt::FontRole, large}},
        {{Qt::ToolTipRole, QStringLiteral("x")}}};
    for (QMap<int, QVariant> const& decoration : decorations) {
        for (auto const position :
             {QStyleOptionViewItem::Left, QStyleOptionViewItem::Right, QStyleOptionViewItem::Top}) {
            QStyleOptionViewItem options = optionsWith(QFont());
            options.decorationPosition = position;
            ColumnWidth const width(delegate, options);
            for (int const decorated : {1, 3}) {
                TableModel model(
                    {{QStringLiteral("text 1")}, {QStringLiteral("text 2")}, {QVariant()}, {QVariant()}});
                model.otherRoles[{decorated, 0}] = decoration;
                QCOMPARE(width.widest(model, {}, 0), width.walked(model, {}, 0));
            }
        }
    }
}

void tst_ColumnWidth::iconWidensANarrowerText()
{
    HItemDelegate const delegate(nullptr);
    QStyleOptionViewItem options = optionsWith(QFont());
    options.decorationSize = QSize(64, 16);
    ColumnWidth const width(delegate, options);
    TableModel model({{QStringLiteral("some text")}, {QStringLiteral("text")}});
    int const withoutIcon = width.widest(model, {}, 0);

    model.otherRoles[{1, 0}][Qt::DecorationRole] = iconOf(64);

    QVERIFY(width.walked(model, {}, 0) > withoutIcon);
    QCOMPARE(width.widest(model, {}, 0), width.walked(model, {}, 0));
}

void tst_ColumnWidth::noRowsNeedNoWidth()
{
    HItemDelegate const delegate(nullptr);
    QStyleOptionViewItem const options = optionsWith(QFont());
    TableModel const model({});

    QCOMPARE(ColumnWidth(delegate, options).widest(model, {}, 0), 0);
    QCOMPARE(ColumnWidth(delegate, options).walked(model, {}, 0), 0);
}

void tst_ColumnWidth::asksAnotherDelegateForEachCell()
{
    CountingDelegate const delegate(nullptr);
    QStyleOptionViewItem const options = optionsWith(QFont());
    TableModel const model({{QStringLiteral("same")}, {QStringLiteral("same")}, {QStringLiteral("same")}});

    QCOMPARE(ColumnWidth(delegate, options).widest(model, {}, 0), 500);
    QCOMPARE(widestText(ColumnWidth(delegate, options), model), 500);
}

QTEST_MAIN(tst_ColumnWidth)
#include "tst_ColumnWidth.moc"
