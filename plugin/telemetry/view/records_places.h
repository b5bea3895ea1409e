#pragma once

// The places of the window of records: above what is seen against time, below the table and at its right the
// other views as tabs. A place without a part takes no room. How the user divided the room is kept.

#include "telemetry/view/records_parts.h"

#include <QSplitter>

class QTabWidget;

namespace vlk {

class RecordsPlaces : public QSplitter
{
    Q_OBJECT

public:
    RecordsPlaces(QWidget* table, std::vector<RecordsPart> parts, QWidget* parent);

    void setName(const QString& name);
    void retranslate();
    // Steps back in the first part that has something to take back; false where none has.
    bool stepBack();
    // To the next view, or the one before, and round: the keyboard is at its tab then.
    void turn(int step);
    // The page about the part that has the keyboard, or about all.
    const char* helpPage() const;
    // Null without views.
    QTabWidget* views() const { return views_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    // How much of a splitter its first place has; of the room of both.
    struct Division
    {
        QSplitter* splitter;
        const char* name; // in the file
        double share;

        void apply() const;
    };

    void keep(Division* division);

    std::vector<RecordsPart> parts_;
    QTabWidget* views_ = nullptr;
    std::vector<Division> divisions_;
};

} // namespace vlk
