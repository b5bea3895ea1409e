#pragma once

// Typing a moment into a QDateTimeEdit of figures alone, over all of it or section by section. The line is
// read as a whole when typing ends: as the box shows its moments, without seconds, without the time (which
// stays), either of figures alone too, or in the form of ISO 8601. A paste ends typing at once. Tab behind a
// day leads to its time, behind a whole moment to the next field.

#include "typing/typed_entry.h"

#include <QDateTime>

class QDateTimeEdit;
class QValidator;

namespace vlk {

class DateEntry : public TypedEntry
{
    Q_OBJECT

public:
    // Joins it to a box, once.
    static DateEntry* join(QDateTimeEdit* box);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    std::optional<News> take(const QString& typed) override;
    QString complaint(const QString& /*typed*/) const override { return {}; }
    void restore() override;
    bool keyPressed(QKeyEvent* event) override;

private:
    explicit DateEntry(QDateTimeEdit* box);

    struct Span
    {
        int begin;
        int end;
    };

    struct Typed
    {
        QDateTime moment;   // invalid where the text is none
        bool isDay = false; // without a time
    };

    Typed read(const QString& typed) const;
    bool isAllSelected() const;
    Span sectionAt(int place) const;
    int indexOf(const Span& section) const;
    int tabbedFrom(bool isBack) const;
    void select(Span span);
    void forward(QKeyEvent* event);
    void typeInSection(QKeyEvent* event);
    void pasted(const QString& text);

    QDateTimeEdit* edit_;
    const QValidator* validator_;
    bool isWhole_ = false;       // the whole line is typed over
    bool cameBySection_ = false; // a full section has led here, and its separator may still be typed
};

} // namespace vlk
