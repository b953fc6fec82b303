#pragma once

namespace calvix::host
{

/// The files of the page that the build compiles in.
extern const char* const kPageTemplate; ///< page.html
extern const char* const kPageStyle;    ///< page.css
extern const char* const kPageScript;   ///< page.js

} // namespace calvix::host
