#pragma once

// Marks at the settings and tabs of the windows: what differs from the file as it came, and what there is
// advice about. Settings open their menu (setting_menu.h) at their widgets and captions.
//
// Settings are marked on the page that is on show, others when they are shown; tabs always.

#include "dialog/configuration_review.h"

#include <QHash>
#include <QPointer>

#include <map>

class QContextMenuEvent;
class QTreeWidget;

namespace vlk {

enum class Mark;

// None for a hint.
std::optional<Mark> markOf(review::Severity severity);

class SettingMarks : public QObject
{
    Q_OBJECT

public:
    // `pageOnShow`: null while there is none.
    SettingMarks(ConfigurationReview& review, std::function<PageSettings*()> pageOnShow, QWidget* window);
    ~SettingMarks() override;

    // Another page is on show.
    void refresh();
    void retranslate();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    // The worst mark of a page of the full window, if it has one, and what it says.
    void tabMarked(int tab, std::optional<vlk::Mark> mark, const QString& told);

private:
    // A row, and the part of it that is shown by itself; -1 for the whole.
    using Spot = std::pair<int, int>;
    struct Told
    {
        bool isChanged = false;
        QString before; // of a changed one, as a file holds it
        QString mover;  // what moved it, in words, where it keeps a distance
        Mark severity{};
        QStringList advice;

        bool operator==(const Told&) const = default;
    };
    using Spots = std::map<Spot, Told>;
    struct Page
    {
        bool isKnown = false; // its widgets are; else they are looked for when it is on show
        std::map<Spot, QPointer<QWidget>> marked;
        QHash<const QObject*, QVector<Spot>> spots; // of widgets and their captions
        Spots told;
    };

    // The row in which the page shows a setting of any table; -1 for none.
    int rowOn(const PageSettings& page, const review::Hit& setting) const;
    // False when its widgets were known.
    bool learn(PageSettings& page);
    Spots spotsOf(const PageSettings& page) const;
    void addAdvice(const PageSettings& page, Spots* spots) const;
    void mark(const PageSettings& page, QWidget* widget);
    void markCell(const PageSettings& page, QTreeWidget* tree, const Spot& spot, const Told& told);
    // At what another value has moved since.
    static void pointAtMoved(const Page& page, const Spots& before);
    void markTabs();

    bool openMenu(QObject* clicked, QContextMenuEvent* event);

    ConfigurationReview& review_;
    const std::function<PageSettings*()> pageOnShow_;
    std::map<const PageSettings*, Page> pages_;
    const PageSettings* onShow_ = nullptr;                        // when it was refreshed last
    std::map<int, std::pair<std::optional<Mark>, QString>> tabs_; // what was told last
};

} // namespace vlk
