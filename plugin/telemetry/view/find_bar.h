#pragma once

// The bar below the table in which words are looked for: Enter and F3 go on, Shift with them goes back, Esc
// closes it.

#include <QFrame>

#include <functional>

class QLabel;
class QLineEdit;
class QToolButton;

namespace vlk {

class RecordFinder;

class FindBar : public QFrame
{
    Q_OBJECT

public:
    FindBar(RecordFinder* finder, QWidget* parent);

    void open();
    // Opens it where nothing is looked for yet.
    void goOn(int step);
    void close();
    void retranslate();

Q_SIGNALS:
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tell(const std::function<QString()>& sentence);

    RecordFinder* finder_;
    QLabel* caption_;
    QLineEdit* words_;
    QToolButton* back_;
    QToolButton* forward_;
    QToolButton* close_;
    QLabel* told_;
    std::function<QString()> sentence_; // again in another language
};

} // namespace vlk
