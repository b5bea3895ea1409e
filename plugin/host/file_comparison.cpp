#include "host/file_comparison.h"

#include "review/compare_files.h"

namespace vlk {

namespace {

const QString* orNull(const QString& text)
{
    return text.isNull() ? nullptr : &text;
}

FileDifference told(const review::Difference& difference, const review::DifferenceText& text)
{
    FileDifference told;
    told.path = &difference.path;
    told.page = &text.page;
    told.group = &text.group;
    told.caption = &text.caption;
    told.before = orNull(text.before);
    told.after = orNull(text.after);
    told.beforeText = told.before ? &text.beforeText : nullptr;
    told.afterText = told.after ? &text.afterText : nullptr;
    return told;
}

FileComparison::Outcome outcomeOf(review::Comparison comparison)
{
    switch (comparison) {
    case review::Comparison::beforeUnreadable:
        return FileComparison::beforeUnreadable;
    case review::Comparison::afterUnreadable:
        return FileComparison::afterUnreadable;
    case review::Comparison::done:
        break;
    }
    return FileComparison::done;
}

} // namespace

void compareFiles(FileComparison& asked)
{
    if (!asked.after || !asked.take)
        return;
    asked.differences = 0;
    const auto secrets = asked.showSecrets == 1 ? review::Secrets::shown : review::Secrets::masked;
    asked.outcome = outcomeOf(
        review::compareFiles(asked.before ? *asked.before : QString(), *asked.after, secrets,
                             [&](const review::Difference& difference, const review::DifferenceText& text) {
                                 const FileDifference row = told(difference, text);
                                 ++asked.differences;
                                 asked.take(asked.context, &row);
                             }));
}

} // namespace vlk
