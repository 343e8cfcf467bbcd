#pragma once

#include <map>

#include "customer/mirorcx.h"
#include "customer/mirsel.h"
#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "ui/bench_desk.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora::test {

/// The customer screens over a company, in the hands of a test that works their controls, counts
/// their reads file by file and makes reads fail.
struct customer_desk {
    explicit customer_desk(const small_company& company) : port(company.drive()) {
        around.time.stop_at({{2024, 5, 6}, 10, 20, 30});
        files.read_fails = [this](const std::string& path, std::int64_t offset, std::size_t size) {
            const std::string extension = path.substr(path.size() - 3);
            ++reads[extension];
            const auto bad = unreadable.find(extension);
            return bad != unreadable.end() && offset <= bad->second &&
                   bad->second < offset + static_cast<std::int64_t>(size);
        };
        app.parameters.numero_azienda = 1;
        apri_archivi(app.archives, files, 1);
        app.mirorcx.made_by(around.desk, [this] { return std::make_unique<mirorcx>(app); });
        app.mirsel.made_by(around.desk, [this] { return std::make_unique<mirsel>(app); });
        app.mirorcx->show();
        reads.clear();
    }

    /// Searches for a name; a box that comes up is answered, and its text noted.
    void search(std::string_view name) {
        box.clear();
        around.user.actions.push_back([this] {
            box = around.desk.open_box()->text;
            around.desk.answer_box(ui::answer::ok);
        });
        app.mirorcx->nome.set_text(name);
        app.mirorcx->b_cerca.click();
        around.user.actions.clear();
    }

    /// Opens the pick list, looks at it, and leaves it by `leave`.
    void with_pick_list(const std::function<void(mirsel&)>& look) {
        around.user.actions.push_back([this, look] {
            look(*app.mirsel);
            if (app.mirsel.loaded()) app.mirsel->indice.click();
        });
        app.mirorcx->b_lista.click();
    }

    [[nodiscard]] const std::string& shown_name() { return app.mirorcx->Text2[0].text(); }

    std::map<std::string, std::size_t> reads;        ///< by the file's extension
    std::map<std::string, std::int64_t> unreadable;  ///< a bad byte of a file
    std::string box;                                 ///< text of the last message
    vantora::drive port;
    faulty_files files{port};
    ui::test::bench_desk around;
    ui::pixbuf_decoder pictures;
    program app{files, around.desk, pictures};
};

}  // namespace vantora::test
