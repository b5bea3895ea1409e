#pragma once

// The bar at the top of a window's content in which the window tells what the user should know and may act
// on: a mark, a sentence, at most two buttons and a cross. Of several notices the worst is on show, among
// equals the one of the lowest number, or the newest, with "1 of 3" behind it, which leads on to the next one
// until there is something new. The bar takes the focus from nobody; F6 goes to it, and back, or on where the
// window has more areas (area_keys.h).

#include "typing/field_mark.h"

#include <QElapsedTimer>
#include <QFrame>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

class QHBoxLayout;
class QToolButton;

namespace vlk {

class TwoLineLabel;

struct Notice
{
    struct Action
    {
        QString text;
        std::function<void()> act;
    };

    Mark mark;
    QString text;
    std::vector<Action> actions; // at most two
    bool mayClose = true;        // by the user; what offers the only way out stays
    QString more{};              // for the tool tip
};

class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    // The label of the sentence gets the name, the cross the same with "_Close" behind it, the buttons with
    // "_Action1" and "_Action2".
    explicit NoticeBar(QWidget* parent, const QString& name = QStringLiteral("label_Notice"));

    // Puts a notice up, in the place of the one that had this number before. It stays until it is ended or
    // the user closes it with the cross.
    void tell(int number, const Notice& notice);
    // Puts up a notice that is asked for again when the language changes.
    void tell(int number, const std::function<Notice()>& notice);
    // Puts up news that go by themselves after a while, unless the mouse or the focus is on the bar. As long
    // as they are there only what is invalid comes before them.
    void tellNews(int number, const std::function<Notice()>& notice);
    // Sets the sentence of a bar that tells one thing, asked for again likewise; null takes it away.
    void tell(const std::function<QString()>& sentence);
    void end(int number);
    bool isOnShow(int number) const;
    // Among equals the one that was told last is on show.
    void setNewestFirst() { isNewestFirst_ = true; }
    enum class Place { None, Edge, Lines };
    // `lines`: two lines of the window are the bar's, whether there is something to tell or not: where
    // notices come and go while the user presses buttons, nothing may move under the mouse. A longer sentence
    // is cut there. `edge`, where the window has no lines to spare: the host's notice stands over what is
    // below.
    void keepPlace(Place place = Place::Lines);
    // Cuts longer sentences; the tool tip has them whole.
    void keepToTwoLines();
    bool isTelling() const { return !told_.empty(); }
    // The property in which the host says how many pixels its own notice wants. A bar with a place has
    // it stand there, over what the bar tells, which waits as in any bar that tells several things. Another
    // bar gives the room below what is on show, or alone.
    static constexpr const char* kRoomBelow = "roomBelow";
    static constexpr int kRoomMargin = 6; // of these pixels, between the two
    // The property with the height that a bar with a kept place has without the host's notice, which is to
    // cover it whole.
    static constexpr const char* kOwnHeight = "ownHeight";
    // The property with how many notices the bar has.
    static constexpr const char* kCount = "notices";
    // How many notices wait behind this bar, in another one.
    void setBehind(int count);
    void retranslate();
    // For its first button; where the bar goes, the focus goes back.
    void takeFocus();

Q_SIGNALS:
    // By the cross.
    void closed(int number);
    // The host's notice came to stand over what the bar tells, or went.
    void coverChanged();

protected:
    // Null when there is none.
    const Notice* shown() const;
    // Closes what is shown, like the cross.
    void closeShown();

    bool hasHeightForWidth() const override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Told
    {
        int number;
        Notice notice;
        std::function<Notice()> again; // null where the teller tells again
        bool isNews = false;
    };

    void put(Told told);
    void endNews();
    bool comesBefore(const Told& a, const Told& b) const;
    // The worst, or what the user went on to; null when there is none.
    const Told* onShow() const;
    void showNext();
    void refresh();
    // With the room below; that of a kept place, and more where something else in the bar is higher.
    void claimHeight();
    void showPlace();
    // In the colour of the palette.
    void setCross();
    void toggleFocus();

    TwoLineLabel* text_;
    QHBoxLayout* buttons_;
    QToolButton* place_;
    QToolButton* close_;
    std::vector<Told> told_; // the newest is the last
    bool isNewestFirst_ = false;
    Place kept_ = Place::None;
    int keptHeight_ = 0;        // of the lines
    int roomBelow_ = 0;         // what of the height is another's
    bool isCovered_ = false;    // by the host's notice
    int behind_ = 0;            // notices in another bar
    QTimer news_;               // at whose end there are none
    std::optional<int> onShow_; // number of the notice that is on show
    std::optional<int> chosen_; // number of the one that the user went on to
    QElapsedTimer replaced_;    // since another one, or the host's, gave way to it
    QPointer<QWidget> before_;  // had the focus before F6
};

} // namespace vlk
