// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

namespace PackageTable::Describe::Instance
{

/// What a package says in one field, to be read, selected and copied. A web address in it is a link, which
/// `linkActivated` tells as it stands; everything else is no markup. A line that is longer than most is
/// wrapped at the width that there is. Owned by its parent; GUI thread.
class Value final : public QLabel
{
public:
    Value(QString const& text, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    int unwrapped = 0; ///< pixels of the longest line; 0 where nothing is wrapped
};

} // namespace PackageTable::Describe::Instance
