#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>

#include "store/file_port.h"

namespace vantora {

/// Reads places of one file for one who will want them in a certain order: while he works on one,
/// the next are on their way, many at once where the disk or the network makes each of them wait.
/// Everything is called from one thread; the threads that read are no concern of the caller, and
/// none is left when the object goes.
///
/// Costs: of n reads of a time t each about n t / 32, of reads from memory half of them or less.
/// In memory at once: 72 batches of at most 256 KiB, or of one place if that is larger; a few of
/// them as long as the reads come from memory. With the disk at once: the places of 32 batches;
/// when the object goes, some of them may still be on their way into the system's own memory.
class read_ahead {
 public:
    /// Bytes of the file in one read. A negative offset can't be read.
    struct place {
        std::int64_t offset = 0;
        std::size_t bytes = 0;
    };

    /// What the thread that read a place does with its bytes while they are warm, in whatever order
    /// places come, before they are taken. REQUIRES: it throws nothing and lasts as long as this.
    using first_look = std::function<void(const place&, std::span<const std::byte>)>;

    /// `from` null: nothing can be read.
    explicit read_ahead(std::shared_ptr<file> from, first_look look = {});
    read_ahead(const read_ahead&) = delete;
    read_ahead& operator=(const read_ahead&) = delete;
    ~read_ahead();

    /// Whether further places are welcome. Said again and again until there are enough, then not
    /// until half of them are taken.
    [[nodiscard]] bool has_room();
    /// This place will be taken, behind those asked for before.
    void ask(place wanted);
    /// What was asked for sets out.
    void send();

    /// The bytes of the next place, zero behind the end of the file; empty if its read failed, or
    /// behind the last place asked for. Valid until the next call of anything here.
    std::optional<std::span<const std::byte>> next();

 private:
    class readers;
    std::unique_ptr<readers> readers_;
};

}  // namespace vantora
