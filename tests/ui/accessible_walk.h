#pragma once

#include <QStringList>
#include <QWidget>

namespace numerello {

// What somebody finds who hears a window, or who has the keyboard alone.

/// The parts of a window that are shown and take the focus, but have no name. A part is told as its
/// role and its object name.
QStringList ShownWithoutName(QWidget& window);

/// The names that two controls of one role have in common, where both are shown and take the focus.
/// Rows of lists may well be alike.
QStringList SharedNames(QWidget& window);

/// The controls that are shown and open, but that the Tab key does not reach.
QStringList BeyondTheTabKey(QWidget& window);

/// The controls with a place in the focus order, sorted by their names.
QStringList TabStops(QWidget& window);

/// Presses Tab from where the focus is until it comes back there, and tells where it went. Several
/// Tabs within one control, from link to link, are one stop. Ends as failed where it never comes
/// back.
QStringList WalkByTab(QWidget& window, bool backwards = false);

/// The labels of controls that cannot be reached, or that are called something else.
QStringList LabelsAstray(QWidget& window);

/// All of the above on a window that is open, with all that its Tab key needs: each stop is met
/// once, in both directions.
void ExpectAllWithinReach(QWidget& window);

}  // namespace numerello
