#pragma once

// What stands in the middle of a list or a table while it shows no row: one grey sentence, and the button
// that helps, if there is one. It comes and goes by itself.

#include <QWidget>

class QAbstractItemView;
class QLabel;
class QPushButton;

namespace vlk {

class EmptyNote : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyNote(QAbstractItemView* view);

    // No button without a text for it.
    void tell(const QString& sentence, const QString& button = {});
    // To be called after rows were hidden or shown, too, of which the model tells nothing.
    void refresh();

Q_SIGNALS:
    void pressed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractItemView* view_;
    QLabel* sentence_;
    QPushButton* button_;
};

} // namespace vlk
