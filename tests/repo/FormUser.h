// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

/// Finds the controls of a window by the words that a user sees.
class FormUser
{
public:
    explicit FormUser(QWidget* used)
        : window(used)
    {
    }

    /// The field of that name; within the group of that title when it is not empty.
    template <typename Field>
    [[nodiscard]] Field* field(QString const& name, QString const& groupTitle = QString()) const
    {
        for (Field* const candidate : window->findChildren<Field*>()) {
            if (candidate->accessibleName() == name && groupOf(candidate) == groupTitle) {
                return candidate;
            }
        }
        return nullptr;
    }

    [[nodiscard]] QPushButton* button(QString const& text) const
    {
        for (QPushButton* const candidate : window->findChildren<QPushButton*>()) {
            if (candidate->text() == text) {
                return candidate;
            }
        }
        return nullptr;
    }

    /// All texts of labels, to look for what must not be there.
    [[nodiscard]] QStringList labels() const
    {
        QStringList texts;
        for (QLabel const* const label : window->findChildren<QLabel*>()) {
            texts += label->text();
        }
        return texts;
    }

private:
    static QString groupOf(QWidget const* field)
    {
        for (QWidget const* at = field->parentWidget(); at; at = at->parentWidget()) {
            if (auto const* const group = qobject_cast<QGroupBox const*>(at)) {
                return group->title();
            }
        }
        return QString();
    }

    QWidget* window;
};
