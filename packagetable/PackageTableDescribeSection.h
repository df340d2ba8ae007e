// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Relations.h"

#include <QList>
#include <QWidget>
#include <array>

class QLabel;
class QToolButton;

namespace PackageTable::Describe::Instance
{

/// One part of a description that tells of other packages: a title that opens it. It is read by a job of the
/// engine when it is first opened. Owned by its parent; GUI thread.
class Section final : public QWidget
{
    Q_OBJECT

public:
    /// All there are, in the order in which they stand.
    static constexpr std::array kinds{Relations::Kind::RequiredBy,  Relations::Kind::RecommendedBy,
                                      Relations::Kind::SatisfiedBy, Relations::Kind::WhyInstalled,
                                      Relations::Kind::Advisories,  Relations::Kind::Versions};

    /// `relations` and `entry` have to outlive it.
    Section(Relations::Kind kind, Relations& relations, Package::Entry const& entry, QWidget* parent);

    [[nodiscard]] Relations::Kind kind() const { return shownKind; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool isOpen() const;
    void open();
    /// Job: everything that it tells, as plain text, where only a first part is shown.
    [[nodiscard]] QString all();

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A job begins, or has ended.
    void reading(bool begins);
    /// The user wants the description of this package, which belongs to the relations.
    void followed(Package::Entry const* entry);
    /// The user wants to see everything.
    void allWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void toggle(bool opened);
    bool read();
    void follow(QString const& link);
    void reveal();
    QString markup(Relations::Answer const& answer);

    Relations::Kind const shownKind;
    Relations& relations;
    Package::Entry const& entry;
    QToolButton* opener;
    QLabel* content;
    QList<Package::Entry const*> links; ///< by the numbers that the markup has for them
    bool filled = false;
};

} // namespace PackageTable::Describe::Instance
