// Reads a list of games that an emulator prints about itself, in any of the forms that are known:
// XML (`-listxml` of MAME, Logiqx DATs) and the text of `-listinfo` of MAME for DOS.
#pragma once

#include "core/platform/result.h"
#include "import/input_window.h"
#include "import/machine.h"

namespace zarvo {

// Looks at the first bytes, then reads to the end. A failure says why and in which line:
// "line 12: the list ends inside <machine>". What the sink took until then is of no use.
Status ReadList(ByteSource& source, MachineSink& sink);

// The two forms; a byte order mark has been passed over.
Status ReadXmlList(InputWindow& window, MachineSink& sink);
Status ReadInfoList(InputWindow& window, MachineSink& sink);

}  // namespace zarvo
