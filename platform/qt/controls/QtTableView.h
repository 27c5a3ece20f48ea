#pragma once

#include <memory>

#include "platform/Controls.h"

class QListView;

namespace orlamo::qt {

/// Fills the list view with a delegate's rows. Each row is its TableRowView with the cell's image, in the text's
/// colour, and text upon it; the list view itself paints neither selection nor hover. A selection made once is never
/// taken back by the user, only moved.
std::shared_ptr<TableView> makeTableView(QListView& list);

}  // namespace orlamo::qt
