#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/archive_change.h"

namespace vantora {

/// Takes the deleted orders out of the archive, and the fulfilled ones too if `elimina_evasi`: the
/// blocks that stay slide down over the gaps, in place, from low to high; then the count falls.
/// The file keeps its length, the orders keep their numbers, and nothing else is touched.
///
/// `progress` is told the `registrazione` at hand and how many there are, 0 when the pass begins,
/// before anything of it moves. It may end the pass by leaving through an exception: the blocks
/// moved so far then stand twice, and the old count still holds. Nobody is asked anything there.
///
/// Without a counter to write nothing moves. An order whose head can't be read stays. The first
/// block that can't be copied ends the moving, since the next would be laid over it, and leaves the
/// count as it was; so does a disk that doesn't take what was moved.
///
/// `unread` gets the names of the orders that stayed since their heads couldn't be read.
change_outcome compatta_archivio(archivi& files, bool elimina_evasi,
                                 const std::function<void(int registrazione, int of)>& progress,
                                 std::vector<std::string>* unread = nullptr);

}  // namespace vantora
