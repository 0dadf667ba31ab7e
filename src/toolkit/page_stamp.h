// Header and footer on the pages of a finished document.
#pragma once

#include <QByteArray>

#include "settings/page_setup.h"

namespace tallix::toolkit {

/// The document with the header and the footer of the page setup on each page, inside
/// its margins. An empty document, or one that cannot be read, comes back empty.
QByteArray StampPages(const QByteArray& pdf, const PageSetup& setup);

}  // namespace tallix::toolkit
