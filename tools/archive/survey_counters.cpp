#include <algorithm>
#include <cmath>

#include "archive/survey.h"

namespace vantora::archive {

namespace {

constexpr int most_counted = 32767;
constexpr int nearly_full = most_counted - 1000;

std::string place_of(int counter) {
    const std::string of = counted_by(counter);
    return "contatore " + std::string(of[0] == 'o' || of[0] == 'a' ? "degli " : "dei ") + of +
           " (vantora.tot, " + std::to_string(counter) + ")";
}

/// False if the counter makes no sense by itself.
bool makes_sense(const record_file& one, const rec_tot& counter, survey& into) {
    const std::string where = place_of(one.counter);
    if (counter.quanti < 0) {
        into.all.push_back({gravity::error, "counter-negative", where,
                            "il numero è negativo (" + std::to_string(counter.quanti) + ")",
                            "I programmi non vedono più niente e non salvano. Rimettere "
                            "vantora.tot da una copia."});
        into.doubt.*one.depends = "il " + where + " è negativo";
        return false;
    }
    if (counter.quanti > nearly_full) {
        into.all.push_back({gravity::warning, "nearly-full", where,
                            "c'è posto ancora per " + std::to_string(most_counted - counter.quanti),
                            one.counter == contatori::ordini
                                ? "Compattare l'archivio degli ordini."
                                : "Preparare un archivio nuovo prima che sia pieno."});
    }
    const bool numbered =
        one.counter == contatori::ordini || one.counter == contatori::documenti_trasporto;
    if (numbered && counter.ultimo_numero > nearly_full) {
        into.all.push_back({gravity::warning, "numbers-nearly-used", where,
                            "l'ultimo numero dato è " + std::to_string(counter.ultimo_numero) +
                                ", e oltre 32767 non si va",
                            "Scrivere un numero più basso nel prossimo."});
    }
    return true;
}

/// Whether exactly so many stand in the file and in its indexes, all in order: what a counter that
/// says something else is wrong against.
bool indexes_say(const survey& found, bool of_customers, int count) {
    for (const key_index& index : found.indexes) {
        if (index.of_customers != of_customers) continue;
        if (static_cast<int>(index.entries.size()) != count) return false;
        if (!fits(index, found.known, count)) return false;
    }
    return true;
}

void tell_short(const record_file& one, std::int64_t counted, std::int64_t held, survey& into) {
    const std::string name = one.name();
    into.all.push_back({gravity::error, "file-short", name,
                        "il contatore dice " + std::to_string(counted) + " " +
                            counted_by(one.counter) + ", nel file ce ne sono " +
                            std::to_string(held),
                        "Quello che manca si legge vuoto. Non salvare niente; rimettere il file "
                        "da una copia."});
    into.doubt.*one.depends = "il file " + name + " è più corto di quanto dice il contatore";
}

void tell_wrong(const record_file& one, int counted, int right, survey& into) {
    into.all.push_back({gravity::error, "counter-wrong", place_of(one.counter),
                        "dice " + std::to_string(counted) +
                            ", ma nel file e nei suoi indici ci "
                            "sono " +
                            std::to_string(right) + " " + counted_by(one.counter),
                        "Mettere a posto il contatore con «repair counters»."});
    into.doubt.*one.depends = "il " + place_of(one.counter) + " non è giusto";
    into.wrong_counters.push_back({one.counter, counted, right});
}

void judge_masters(const record_file& one, int counted, int held, survey& into) {
    if (held == counted || !(into.doubt.*one.depends).empty()) return;
    const bool of_customers = one.counter == contatori::clienti;
    if (held > 0 && held <= most_counted && indexes_say(into, of_customers, held)) {
        tell_wrong(one, counted, held, into);
    } else if (held < counted) {
        tell_short(one, counted, held, into);
    }
}

/// Behind the counter of what is only ever added: what an unload left that never came to its end.
void judge_added(const record_file& one, int counted, std::int64_t held, survey& into) {
    if (held < counted) return tell_short(one, counted, held, into);
    if (held == counted) return;
    into.all.push_back({gravity::warning, "records-behind", one.name(),
                        std::to_string(held - counted) + " " + counted_by(one.counter) +
                            " stanno oltre il contatore (" + std::to_string(counted) + ")",
                        "Uno scarico è stato interrotto, o il contatore è rimasto indietro: "
                        "confrontare con i documenti. I prossimi vengono scritti sopra a questi."});
    into.doubt.*one.depends = "oltre il " + place_of(one.counter) + " c'è ancora qualcosa";
}

void survey_running_number(company_files& company, survey& into) {
    const float running = company.counter(contatori::documenti_trasporto).progressivo;
    constexpr float stands_still = 16777216.0F;
    const std::string where = place_of(contatori::documenti_trasporto);
    if (!std::isfinite(running) || running < 0) {
        into.all.push_back({gravity::error, "running-number", where,
                            "il progressivo dei file b non è un numero",
                            "Rimettere vantora.tot da una copia prima del prossimo documento."});
    } else if (running >= stands_still) {
        into.all.push_back({gravity::warning, "running-number", where,
                            "il progressivo dei file b non può più salire",
                            "Ogni documento nuovo riscrive lo stesso file b: metterlo da parte "
                            "ogni volta."});
    }
}

}  // namespace

void survey_counters(company_files& company, survey& into) {
    for (const int number :
         {contatori::clienti, contatori::articoli, contatori::magazzino,
          contatori::documenti_trasporto, contatori::ordini, contatori::preventivi}) {
        const record_file& one = *std::ranges::find_if(record_files, [number](const auto& file) {
            return file.counter == number && !file.is_index();
        });
        const auto length = company.length_of(one.extension);
        const rec_tot counter = company.counter(number);
        const bool told = !(into.doubt.*one.depends).empty();
        if (told && length) continue;
        if (!makes_sense(one, counter, into) || told) continue;
        const std::int64_t held = length.value_or(0) / (one.record_length * one.per_count);
        if (one.counter == contatori::clienti || one.counter == contatori::articoli) {
            judge_masters(one, counter.quanti,
                          static_cast<int>(std::min<std::int64_t>(held, 65535)), into);
        } else if (one.counter == contatori::magazzino ||
                   one.counter == contatori::documenti_trasporto) {
            judge_added(one, counter.quanti, held, into);
        } else if (one.counter == contatori::preventivi && held < counter.quanti) {
            tell_short(one, counter.quanti, held, into);
        }
    }
    if (into.doubt.documents.empty()) survey_running_number(company, into);
}

}  // namespace vantora::archive
