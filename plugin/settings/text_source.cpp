#include "settings/text_source.h"

#include <QCoreApplication>

#include <utility>

namespace vlk {

namespace {

thread_local const TextSource* present = nullptr;

} // namespace

TextsFrom::TextsFrom(const TextSource& source) : before_(std::exchange(present, &source)) {}

TextsFrom::~TextsFrom()
{
    present = before_;
}

QString textOf(const char* key)
{
    return present ? (*present)(key) : QCoreApplication::translate("vlk", key);
}

} // namespace vlk
