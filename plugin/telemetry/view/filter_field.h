#pragma once

// The field above the table in which the records to be shown are asked for. Names and words are completed as
// they are typed; Enter applies, an empty field shows all, and an arrow in it, or Down, gives the filters
// that were applied last. What cannot be read is told below, with the place and with what was expected there,
// and changes nothing: the filter that stays on show is told with it.

#include "telemetry/files/filter_parser.h"
#include "typing/field_mark.h"

#include <QWidget>

#include <functional>

class QAction;
class QCompleter;
class QLabel;
class QLineEdit;
class QStringListModel;

namespace vlk {

class RecordsModel;
class ShownRecords;

class FilterField : public QWidget
{
    Q_OBJECT

public:
    FilterField(ShownRecords* shown, RecordsModel* model, QWidget* parent);

    // With what is beside it in its row.
    void addWidget(QWidget* widget);
    void apply(const QString& text);
    void clear() { apply({}); }
    bool isApplied() const { return !applied_.isEmpty(); }
    // What is applied, in place of what was typed since; false where nothing was.
    bool giveBack();
    // The cell as a condition.
    QString conditionOf(int record, int column);
    // From half an hour before the record to half an hour behind it; empty where it has no time.
    QString hourAround(int record);
    void retranslate();

Q_SIGNALS:
    void applied();

private:
    void offer();
    void complete(const QString& text);
    void applyTyped();
    void offerLatest();
    QString faultText(const QString& text);
    void tell(const std::function<QString()>& sentence, Mark mark = Mark::Invalid);
    void tellAbsent(const Filter& filter);
    const FilterNames& names();
    void addEvent(quint32 code);
    void addAllEvents();
    // Asks the host for the words of events that this file lacks, where it cannot be read without.
    ParsedFilter parsed(const QString& text);
    QString inWords(const Filter& filter);

    ShownRecords* shown_;
    RecordsModel* model_;
    QLabel* caption_;
    QLineEdit* line_;
    QAction* latest_;
    QLabel* fault_;
    QCompleter* completer_;
    QStringListModel* offered_;
    std::vector<FilterCompletion> completions_;
    std::optional<FilterNames> names_; // of this file, made when they are asked for
    bool hasAllEvents_ = false;
    std::function<QString()> told_;
    Mark mark_ = Mark::Invalid;
    QString applied_;
    Filter appliedFilter_;
};

} // namespace vlk
