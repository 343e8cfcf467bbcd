#include "archive/export_tables.h"

#include "archive/table_writer.h"

namespace vantora::archive {

namespace {

void export_long_texts(company_files& company, table_writer& into) {
    const naming& names = into.names;
    into.begin(table_id::article_texts,
               {{names("articolo", "article"), content::whole, names(table_id::articles)},
                {names("riga", "line"), content::whole},
                {names("testo", "text"), content::words}},
               2);
    scan(company.records().prx, into.to.articles, [&](std::int64_t number, const rec_prx& one) {
        if (one.marca_testo != rec_prx::ha_testo) return;
        std::int64_t line = 0;
        for (const auto& text : one.righe) {
            ++line;
            std::string words = cell_text(text.full());
            if (!words.empty()) into.row({number, line, std::move(words)});
        }
    });
    into.end();
}

void export_missing(const gaps& missing, table_writer& into) {
    into.begin(table_id::missing, {{"id", content::whole},
                                   {"file", content::words},
                                   {into.names("che_cosa", "what"), content::words}});
    std::int64_t number = 0;
    for (const gap& one : missing) into.row({++number, one.file, one.what});
    into.end();
}

}  // namespace

export_outcome export_tables(company_files& company, table_sink& sink, bool english, gaps missing,
                             export_progress tell) {
    const referred to{company.count(contatori::clienti), company.count(contatori::articoli)};
    table_writer into(sink, english, to, std::move(tell));
    archivi& files = company.records();
    into.records(table_id::customers, files.cli, to.customers, missing);
    into.records(table_id::articles, files.art, to.articles, missing);
    export_long_texts(company, into);
    export_orders(company, into, missing);
    into.records(table_id::movements, files.mag, company.count(contatori::magazzino), missing);
    export_documents(company, into, missing);
    export_lists(company, into, missing);
    export_outcome outcome;
    outcome.lost_references = export_leftovers(company, into);
    if (!missing.empty()) export_missing(missing, into);
    outcome.missing = std::move(missing);
    outcome.tables = into.tables();
    outcome.rows = into.rows();
    return outcome;
}

}  // namespace vantora::archive
