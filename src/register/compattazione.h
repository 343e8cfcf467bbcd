#pragma once

#include <functional>

#include "store/archives.h"
#include "store/write_plan.h"

namespace vantora {

/// Takes the deleted orders out of the archive, and the fulfilled ones too if `elimina_evasi`: the
/// blocks that stay slide down over the gaps, in place, from low to high; then the count falls.
/// The file keeps its length, the orders keep their numbers, and nothing else is touched.
///
/// `counter`: record `contatori::ordini` as just read; it comes back as written. `progress` is
/// told the `registrazione` at hand, before anything of it moves, and may end the pass by leaving
/// through an exception: the blocks moved so far then stand twice, and the old count still holds.
///
/// Without a counter to write nothing moves. An order whose head can't be read stays. The first
/// block that can't be copied ends the moving, since the next would be laid over it, and leaves the
/// count as it was; so does a disk that doesn't take what was moved. Returns the files at fault.
write_faults compatta_archivio(archivi& files, rec_tot& counter, bool elimina_evasi,
                               const std::function<void(int)>& progress);

}  // namespace vantora
