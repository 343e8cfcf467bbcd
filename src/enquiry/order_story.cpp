#include "enquiry/order_story.h"

#include <algorithm>
#include <set>

#include "enquiry/all_records.h"
#include "store/records/order_block.h"

namespace vantora {

namespace {

/// Goods and document of one confirmation carry the same moment and customer.
bool together(const rec_bol& document, const rec_mag& movement) {
    return document.data_reg == movement.data_reg && document.cliente == movement.cliente;
}

void add_movement(std::vector<consegna>& all, const rec_mag& movement) {
    auto place = std::ranges::find_if(all, [&](const consegna& one) {
        return one.movimenti.front().data_reg == movement.data_reg;
    });
    if (place == all.end()) place = all.insert(all.end(), consegna{});
    place->movimenti.push_back(movement);
}

}  // namespace

std::optional<storia_ordine> read_story(const archivi& files, std::int16_t registrazione) {
    storia_ordine story;
    story.righe.resize(static_cast<std::size_t>(righe_blocco));
    if (!files.orc.read_block(block_record(registrazione, 1), story.righe)) return {};
    const rec_orc& head = story.righe.front();
    std::set<std::int16_t> articles;
    for (const rec_orc& row : story.righe) {
        if (row.articolo > 0) articles.insert(row.articolo);
    }
    for_all(files.mag, records_in_use(files, contatori::magazzino),
            [&](int, const rec_mag& movement) {
                const bool its_own = movement.cliente == head.cliente &&
                                     movement.data_reg >= head.data_reg &&
                                     articles.contains(movement.articolo);
                if (its_own) add_movement(story.consegne, movement);
            });
    for_all(files.bol, records_in_use(files, contatori::documenti_trasporto),
            [&](int number, const rec_bol& document) {
                for (consegna& one : story.consegne) {
                    if (one.documento != 0 || !together(document, one.movimenti.front())) continue;
                    one.documento = static_cast<std::int16_t>(number);
                    one.testata = document;
                    return;
                }
            });
    return story;
}

}  // namespace vantora
