#include "base/translated.h"

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

QString translated(const char* key)
{
    if (!key || !*key)
        return {};
    return present ? (*present)(key) : QCoreApplication::translate("vlk", key);
}

} // namespace vlk
