#pragma once

namespace calvix::host
{

/// The files of the page that the build compiles in, and what the page's policy knows them by.
extern const char* const kPageTemplate; ///< page.html
extern const char* const kPageStyle;    ///< page.css
extern const char* const kPageStyleHash;
extern const char* const kPageScript; ///< page.js
extern const char* const kPageScriptHash;

} // namespace calvix::host
