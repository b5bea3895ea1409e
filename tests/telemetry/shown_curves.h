#pragma once

// Curves of records in a window, as a person works them.

#include "support/records.h"
#include "support/truck_records.h"
#include "telemetry/curves/curves_view.h"
#include "telemetry/shown/shown_records.h"

#include <QtTest>
#include <QtWidgets>

namespace vlk {

// A test of it begins with start().
class ShownCurves
{
protected:
    void start()
    {
        records_ = std::make_unique<ShownRecords>();
        view_ = std::make_unique<CurvesView>(records_.get());
        view_->resize(900, 400);
        view_->show();
        QVERIFY(QTest::qWaitForWindowExposed(view_.get()));
        plot_ = view_->findChild<QWidget*>(QStringLiteral("plot_Curves"));
    }
    void open(RecordStore store)
    {
        TelemetryContents contents;
        contents.records = std::move(store);
        contents.records.setUtcOffset(3 * 3600);
        records_->setContents(std::move(contents));
    }
    QString line() const { return view_->findChild<QLabel*>(QStringLiteral("label_Cursors"))->text(); }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(plot_, Qt::Key(key), modifiers);
    }
    double length() const { return records_->inSight().to - records_->inSight().from; }
    // The canvas, which takes the mouse.
    QWidget* canvas() const { return plot_->findChild<QWidget*>(QStringLiteral("canvas_Curves")); }

    std::unique_ptr<ShownRecords> records_;
    std::unique_ptr<CurvesView> view_;
    QWidget* plot_ = nullptr;
};

} // namespace vlk
