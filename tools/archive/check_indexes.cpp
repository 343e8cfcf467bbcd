#include "archive/check.h"

namespace vantora::archive {

namespace {

constexpr const char* rebuild = "Rifare l'indice con «repair indexes».";

class index_check {
 public:
    index_check(const key_index& index, const survey& found, findings& into)
        : index_(index),
          known_(found.known),
          count_(index.counted(found.known)),
          into_(into),
          met_(static_cast<std::size_t>(count_) + 1) {}

    void run() {
        const int held = static_cast<int>(index_.entries.size());
        if (held < count_) {
            into_.push_back({gravity::error, "index-short", index_.name(),
                             "ha " + std::to_string(held) + " voci, e il contatore dice " +
                                 std::to_string(count_),
                             rebuild});
        }
        const key_index::entry* before = nullptr;
        for (int position = 1; position <= std::min(held, count_); ++position) {
            const auto& one = index_.entries[static_cast<std::size_t>(position) - 1];
            if (!one.read) continue;
            look_at(position, one, before);
            before = &one;
        }
        if (held >= count_ && index_.unread == 0) tell_missing();
    }

 private:
    void look_at(int position, const key_index::entry& one, const key_index::entry* before) {
        if (before && out_of_order(before->key, one.key)) {
            tell("index-order", position, one, "non è al suo posto nell'ordine alfabetico",
                 rebuild);
        }
        if (one.record < 1 || one.record > count_) {
            return tell("index-nowhere", position, one,
                        "porta al numero " + std::to_string(one.record) + ", che non c'è", rebuild);
        }
        const auto place = static_cast<std::size_t>(one.record);
        if (met_[place]) {
            tell("index-twice", position, one, index_.record_named(known_, one.record) + " c'è già",
                 rebuild);
        }
        met_[place] = true;
        const auto key = index_.key_of(known_, one.record);
        if (!key || same_key(*key, one.key)) return;
        // Told of the record itself, whose key is left here alone.
        if (is_lost_key(*key, one.key)) return;
        tell("index-other-key", position, one, "in anagrafica è invece «" + words_of(*key) + "»",
             "Vedere quale dei due è giusto. Se è giusta l'anagrafica: «repair indexes». Se è "
             "giusto l'indice: correggere l'anagrafica.");
    }

    void tell(const char* kind, int position, const key_index::entry& one, std::string what,
              const char* advice) {
        into_.push_back(
            {gravity::error, kind,
             index_.name() + ", voce " + std::to_string(position) + " «" + words_of(one.key) + "»",
             std::move(what), advice});
    }

    void tell_missing() {
        for (int number = 1; number <= count_; ++number) {
            if (met_[static_cast<std::size_t>(number)] || !index_.key_of(known_, number)) continue;
            into_.push_back({gravity::error, "index-missing", index_.name(),
                             index_.record_named(known_, number) + " manca nell'indice", rebuild});
        }
    }

    const key_index& index_;
    const masters& known_;
    int count_;
    findings& into_;
    std::vector<bool> met_;
};

}  // namespace

void check_indexes(const survey& found, findings& into) {
    for (const key_index& index : found.indexes) {
        const std::string& doubt =
            index.of_customers ? found.doubt.customers : found.doubt.articles;
        if (!doubt.empty() || !index.present) continue;
        index_check(index, found, into).run();
    }
}

}  // namespace vantora::archive
