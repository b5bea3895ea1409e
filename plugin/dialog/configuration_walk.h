#pragma once

// The walks over all pages that read a configuration into them and write it out of them.

struct CXmlSection;

namespace vlk {

class ConfigPages;

// `root` is the element DEVICE. Its balance request code goes to `ussdBuffer` (kBalanceUssdSize bytes), which
// an unusable document leaves as it is.
void loadPages(const ConfigPages& pages, CXmlSection* root, char* ussdBuffer);
// The attributes of the root and a section for each page.
void savePages(const ConfigPages& pages, CXmlSection* root);

} // namespace vlk
