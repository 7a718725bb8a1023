#include "tests/ui/accessible_walk.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMetaEnum>
#include <QTabBar>
#include <QToolBar>
#include <algorithm>
#include <functional>
#include <stdexcept>

#include "tests/ui/window.h"

namespace numerello {

namespace {

constexpr int kMostTabs = 400;

using Part = QAccessibleInterface;

void ForEachPart(Part* part, const std::function<void(Part&)>& look) {
    if (part == nullptr || !part->isValid()) {
        return;
    }
    look(*part);
    for (int i = 0; i < part->childCount(); ++i) {
        ForEachPart(part->child(i), look);
    }
}

bool IsShownForKeys(const Part& part) {
    const QAccessible::State state = part.state();
    return state.focusable != 0 && state.invisible == 0;
}

QString RoleOf(const Part& part) {
    return QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(part.role()));
}

/// A closed list may tell its choice in place of its name; then what it is for stands in its label
/// or its description.
QString NameOf(Part& part) {
    if (part.role() != QAccessible::ComboBox) {
        return part.text(QAccessible::Name).trimmed();
    }
    const auto labels = part.relations(QAccessible::Label);
    return labels.isEmpty() ? part.text(QAccessible::Description)
                            : labels.front().first->text(QAccessible::Name);
}

QString Told(const QObject& object) {
    return QStringLiteral("%1 '%2'").arg(QString::fromLatin1(object.metaObject()->className()),
                                         object.objectName());
}

bool IsRow(const Part& part) {
    return part.role() == QAccessible::ListItem || part.role() == QAccessible::TreeItem;
}

template <class... Kinds>
bool IsOneOf(const QWidget& widget) {
    return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

bool IsControl(const QWidget& widget) {
    return IsOneOf<QAbstractButton, QLineEdit, QComboBox, QAbstractItemView, QAbstractSpinBox,
                   QTabBar>(widget);
}

bool IsOpen(const QWidget& widget, const QWidget& window) {
    return widget.window() == &window && widget.isVisible() && widget.isEnabled();
}

/// Parts of a control share its place in the focus order.
bool IsPartOfAnother(const QWidget& widget) {
    return widget.parentWidget() != nullptr &&
           IsOneOf<QComboBox, QAbstractItemView, QAbstractSpinBox, QLineEdit, QTabBar>(
               *widget.parentWidget());
}

/// The arrow keys go from the chosen one of a group to the others.
bool IsBesideTheChosenOne(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button != nullptr && button->isCheckable() && button->autoExclusive() &&
           !button->isChecked();
}

/// Each of these commands has an entry in a menu, and a shortcut there.
bool IsToolOfAFrame(const QWidget& widget, const QWidget& window) {
    return qobject_cast<const QToolBar*>(widget.parentWidget()) != nullptr &&
           window.objectName() == QStringLiteral("frmMain");
}

/// It says of the figure above it that this can be clicked; the figure takes the keys.
bool IsNotice(const QWidget& widget) {
    return widget.objectName() == QStringLiteral("Click");
}

bool IsStop(const QWidget& widget, const QWidget& window) {
    return IsOpen(widget, window) && (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
           widget.focusProxy() == nullptr;
}

}  // namespace

QStringList ShownWithoutName(QWidget& window) {
    QStringList nameless;
    ForEachPart(QAccessible::queryAccessibleInterface(&window), [&nameless](Part& part) {
        if (IsShownForKeys(part) && NameOf(part).isEmpty()) {
            nameless << RoleOf(part) + u' ' +
                            (part.object() != nullptr ? Told(*part.object()) : QString());
        }
    });
    return nameless;
}

QStringList SharedNames(QWidget& window) {
    QMap<QString, int> counts;
    ForEachPart(QAccessible::queryAccessibleInterface(&window), [&counts](Part& part) {
        if (IsShownForKeys(part) && !IsRow(part)) {
            ++counts[RoleOf(part) + u' ' + NameOf(part)];
        }
    });
    QStringList shared;
    for (auto each = counts.cbegin(); each != counts.cend(); ++each) {
        if (each.value() > 1) {
            shared << each.key();
        }
    }
    return shared;
}

QStringList BeyondTheTabKey(QWidget& window) {
    QStringList beyond;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool another = IsPartOfAnother(*widget) || IsBesideTheChosenOne(*widget) ||
                             IsToolOfAFrame(*widget, window) || IsNotice(*widget);
        if (IsControl(*widget) && IsOpen(*widget, window) && !another && !IsStop(*widget, window)) {
            beyond << Told(*widget);
        }
    }
    return beyond;
}

QStringList TabStops(QWidget& window) {
    QStringList stops;
    if (IsStop(window, window)) {
        stops << Told(window);
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (IsStop(*widget, window)) {
            stops << Told(*widget);
        }
    }
    stops.sort();
    return stops;
}

QStringList WalkByTab(QWidget& window, bool backwards) {
    const auto press = [&window, backwards] {
        backwards ? PressKey(window, Qt::Key_Backtab, Qt::ShiftModifier)
                  : PressKey(window, Qt::Key_Tab);
    };
    if (window.focusWidget() == nullptr) {
        press();
    }
    const QWidget* first = window.focusWidget();
    if (first == nullptr) {
        return {};
    }
    QStringList met{Told(*first)};
    const QWidget* last = first;
    for (int tabs = 0; tabs < kMostTabs; ++tabs) {
        press();
        const QWidget* now = window.focusWidget();
        if (now == nullptr) {
            throw std::runtime_error("the focus is lost behind " + met.back().toStdString());
        }
        if (now == first && last != first) {
            return met;
        }
        if (now != last) {
            met << Told(*now);
        }
        last = now;
    }
    if (last == first) {
        return met;  // it is the only stop
    }
    throw std::runtime_error("the focus does not come back to " + met.front().toStdString() +
                             "; it went to " + met.mid(1, 12).join(u", ").toStdString());
}

QStringList LabelsAstray(QWidget& window) {
    QStringList astray;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        const QWidget* buddy = label->buddy();
        if (buddy == nullptr || !label->isVisible()) {
            continue;
        }
        QString text = label->text();
        text.remove(u'&');
        while (text.endsWith(u':')) {
            text.chop(1);
        }
        const QString name = buddy->accessibleName();
        const bool isCalledElse = !name.isEmpty() && !name.startsWith(text, Qt::CaseInsensitive);
        if (!IsStop(*buddy, window) || isCalledElse) {
            astray << label->text() + QStringLiteral(" of ") + Told(*buddy);
        }
    }
    return astray;
}

void ExpectAllWithinReach(QWidget& window) {
    const auto told = [](const QStringList& names) { return names.join(u'\n').toStdString(); };
    EXPECT_EQ(told(ShownWithoutName(window)), "");
    EXPECT_EQ(told(SharedNames(window)), "");
    EXPECT_EQ(told(BeyondTheTabKey(window)), "");
    EXPECT_EQ(told(LabelsAstray(window)), "");

    QStringList onward = WalkByTab(window);
    QStringList back = WalkByTab(window, true);
    // The way back begins at the same control.
    std::reverse(back.begin() + std::min<qsizetype>(1, back.size()), back.end());
    EXPECT_EQ(told(back), told(onward));
    onward.sort();
    EXPECT_EQ(told(onward), told(TabStops(window)));
}

}  // namespace numerello
