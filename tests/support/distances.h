#pragma once

// The distances in the layouts of what is on show, as the house has them and no others.

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QSet>
#include <QStringList>
#include <QWidget>

inline QStringList oddDistances(const QWidget* window)
{
    static const QSet<int> margins{0, 6, 9, 12, 16, 20};
    static const QSet<int> inRows{0, 8, 12, 16};
    static const QSet<int> inStacks{0, 6, 8, 12, 16};
    // Layouts in these are the toolkit's, or of bars, which have a height of their own.
    static const QStringList others{"QDialogButtonBox", "QStatusBar", "QToolBar",   "QMainWindow",
                                    "vlk::NoticeBar",   "QTabWidget", "QMessageBox"};
    QStringList found;
    for (const auto* layout : window->findChildren<QLayout*>()) {
        const QWidget* parent = layout->parentWidget();
        const bool isOthers = std::any_of(others.begin(), others.end(), [parent](const QString& name) {
            return parent && parent->inherits(qPrintable(name));
        });
        if (!parent || isOthers || !parent->isVisibleTo(window) || parent->window() != window)
            continue;
        QList<QPair<int, bool>> distances;
        const QMargins around = layout->contentsMargins();
        const auto* group = qobject_cast<const QGroupBox*>(parent);
        if (group && group->layout() == layout && !group->title().isEmpty())
            distances << qMakePair(around.left(), around.left() == 16);
        for (const int margin : {around.left(), around.top(), around.right(), around.bottom()})
            distances << qMakePair(margin, margins.contains(margin));
        const auto between = [&distances](int spacing, int count, bool isRow) {
            if (count > 1)
                distances << qMakePair(spacing, (isRow ? inRows : inStacks).contains(spacing));
        };
        if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
            between(grid->horizontalSpacing(), grid->columnCount(), true);
            between(grid->verticalSpacing(), grid->rowCount(), false);
        } else if (const auto* box = qobject_cast<const QBoxLayout*>(layout)) {
            between(box->spacing(), box->count(), box->direction() == QBoxLayout::LeftToRight);
        }
        for (const auto& [distance, isOurs] : distances) {
            if (!isOurs)
                found << QStringLiteral("%1 in %2 (%3): %4")
                             .arg(layout->objectName(), parent->objectName(),
                                  parent->metaObject()->className())
                             .arg(distance);
        }
    }
    found.removeDuplicates();
    return found;
}
