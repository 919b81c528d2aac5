#pragma once

class QAbstractScrollArea;

namespace orn {

// Gives the area's scroll bars the toolkit's look: 11 pixels wide, black rounded
// handles, no arrow buttons. The bars get a "fusion" style of their own, owned by
// the area, so the look is the same on every platform.
void style_scrollbars(QAbstractScrollArea* area);

} // namespace orn
