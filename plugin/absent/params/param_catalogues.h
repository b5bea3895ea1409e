#pragma once

// The catalogues of user parameters as data: the counter values of a passenger counter and three lists of
// what a CAN bus tells. A row is a parameter or, behind a parameter that is stored as bits, one of its bits.

#include <array>
#include <span>

namespace vlk {

struct CatalogueRow
{
    int id;
    const char* type; // element type, empty where the parameter has none; null: a bit of the row above
    const char* name; // translation key
};

struct ParamCatalogue
{
    const char* code;  // of the parameters that are offered from it
    const char* title; // translation key
    std::span<const CatalogueRow> rows;
};

extern const std::span<const CatalogueRow> kCounterRows;
extern const std::array<ParamCatalogue, 3> kCanCatalogues;

} // namespace vlk
