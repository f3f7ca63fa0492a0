#pragma once

#include "zip/Report.h"
#include "zip/Request.h"

namespace tarnwick {

// Puts the folder into the archive: entries that are there already are replaced, all others kept as
// they are. After a failure the old archive stands as it was.
ZipStatus updateArchive(const ZipRequest& request, ZipReport& report);

}  // namespace tarnwick
