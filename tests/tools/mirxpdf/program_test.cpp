#include <gtest/gtest.h>

#include "run_of_program.h"

namespace vantora::test {
namespace {

const pdf_drive::page one_text = {text_at(20, 30, "Ordine")};

TEST(mirxpdf_program, TheArgumentSaysWhatBecomesOfIt) {
    const struct {
        std::vector<std::string> words;
        int exit_code;
        const char* pdf;  ///< where it lies afterwards
    } runs[] = {
        {{"***,c:\\mirdoc.rto,C:\\a.pdf, ***"}, 0, "a.pdf"},
        {{"\\mirwin\\mirwin\\miraz0.001\\vantora.lxo,c:\\mirdoc.rto,C:\\a.pdf,***"}, 0, "a.pdf"},
        {{"***,c:\\mirdoc.rto,C:\\a.pdf"}, 0, "a.pdf"},
        {{"***,c:\\mirdoc.rto,C:\\a.pdf,"}, 0, "a.pdf"},
        {{"x,C:\\MIRDOC.RTO , c:\\a.pdf ,  "}, 0, "a.pdf"},
        {{"***,c:\\mirdoc.rto,C:\\nuova\\sotto", "cartella\\a", "b.pdf,", "***"},
         0,
         "nuova/sotto cartella/a b.pdf"},
        {{"***,c:\\mirdoc.rto,C:\\MirWin\\..\\Perch\xC3\xA9.pdf"}, 0, "mirwin/Perch\xC3\xA9.pdf"},
        {{"--no-window", "***,c:\\mirdoc.rto,\\a.pdf", "--drive", "x.PDF"},
         0,
         "a.pdf --drive x.PDF"},
        {{"***,c:\\mirdoc.rto,C:\\a.txt"}, 1, nullptr},
        {{}, 2, nullptr},
        {{""}, 2, nullptr},
        {{"***"}, 2, nullptr},
        {{"***,c:\\mirdoc.rto"}, 2, nullptr},
        {{"***,c:\\mirdoc.rto,,***"}, 2, nullptr},
        {{"***,,C:\\a.pdf,***"}, 2, nullptr},
        {{"***,c:\\mirdoc.rto,C:\\cartella\\,***"}, 2, nullptr},
        {{"***,c:\\mirdoc.rto,C:,***"}, 2, nullptr},
        {{"--unknown"}, 2, nullptr},
        {{"--drive", "/no/such/folder", "***,c:\\mirdoc.rto,C:\\a.pdf"}, 2, nullptr},
    };
    for (const auto& one : runs) {
        pdf_drive drive;
        std::filesystem::create_directories(drive.at("mirwin"));
        drive.write_print_file({one_text});
        const auto before = drive.names();
        const auto result = drive.run(one.words);
        const std::string call = testing::PrintToString(one.words);
        EXPECT_EQ(result.exit_code, one.exit_code) << call << result.said;
        if (one.pdf) {
            EXPECT_TRUE(bytes_of(drive.at(one.pdf)).starts_with("%PDF-")) << call;
        } else {
            EXPECT_EQ(drive.names(), before) << call;
            EXPECT_NE(result.said, "") << call;
        }
    }
}

TEST(mirxpdf_program, TheDriveIsWhereTheProgramLies) {
    pdf_drive drive;
    drive.write_print_file({one_text});
    const auto place = drive.at("Mirwin/mirwin/mirxpdf");
    std::filesystem::create_directories(place.parent_path());
    std::filesystem::create_symlink(MIRXPDF_PROGRAM, place);
    for (const std::string& started_as : {place.string(), std::string("Mirwin/mirwin/mirxpdf")}) {
        std::filesystem::remove(drive.at("doc.pdf"));
        const auto result = drive.run_command({started_as, report_call});
        EXPECT_EQ(result.exit_code, 0) << started_as << result.said;
        EXPECT_TRUE(std::filesystem::exists(drive.at("doc.pdf"))) << started_as;
    }
    const auto elsewhere = drive.run_command({MIRXPDF_PROGRAM, report_call});
    EXPECT_EQ(elsewhere.exit_code, 2);
    EXPECT_NE(elsewhere.said.find("--drive"), std::string::npos) << elsewhere.said;
}

TEST(mirxpdf_program, WhatIsNoPrintFileLeavesTheOlderPdf) {
    const std::string mark = std::string(marca_verticale) + "\r\n";
    const std::string text =
        " 3 \r\n 1 \r\n 2 \r\n 0 \r\n 0 \r\n 9 \r\n 0 \r\nx\r\nArial\r\n 0 \r\n";
    const struct {
        std::string content;
        const char* said;
    } cases[] = {
        {"", "non è un file di stampa"},
        {"#FILEFORMAT=KLP-RTX\r\n", "non è un file di stampa"},
        {mark + text, "incompleto (riga 12)"},
        {mark, "non ha pagine"},
    };
    for (const auto& one : cases) {
        pdf_drive drive;
        put(drive.at("mirdoc.rto"), one.content);
        put(drive.at("doc.pdf"), "the one before");
        const auto result = drive.run({report_call});
        EXPECT_EQ(result.exit_code, 1) << one.said;
        EXPECT_NE(result.said.find(one.said), std::string::npos) << result.said;
        EXPECT_EQ(bytes_of(drive.at("doc.pdf")), "the one before");
        EXPECT_EQ(drive.names(), (std::vector<std::string>{"doc.pdf", "mirdoc.rto"}));
    }
    const pdf_drive empty;
    const auto result = empty.run({report_call});
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_NE(result.said.find("c:\\mirdoc.rto non si può leggere"), std::string::npos);
}

TEST(mirxpdf_program, APdfThatCannotBeWrittenIsReported) {
    for (const char* place : {"C:\\taken.pdf", "C:\\file\\doc.pdf", "C:\\..", "C:\\link.pdf"}) {
        pdf_drive drive;
        drive.write_print_file({one_text});
        std::filesystem::create_directory(drive.at("taken.pdf"));
        std::filesystem::create_symlink("file", drive.at("link.pdf"));
        put(drive.at("file"), "a file, no folder");
        const auto before = drive.names();
        const auto result = drive.run({std::string("***,c:\\mirdoc.rto,") + place});
        EXPECT_EQ(result.exit_code, 1) << place;
        EXPECT_NE(result.said.find("non è stato creato"), std::string::npos) << result.said;
        EXPECT_EQ(drive.names(), before) << place;
    }
}

TEST(mirxpdf_program, OneOddValueLosesNoDocumentButIsTold) {
    pdf_drive drive;
    drive.write_print_file({{text_at(20, 30, "Ordine", "Arial", 1'000'000), text_at(9e9, 30, "x")},
                            {text_at(20, 30, "ultima")}});
    const auto result = drive.run({report_call});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_NE(result.said.find("numero troppo grande (riga 7)"), std::string::npos) << result.said;
    EXPECT_NE(result.said.find("saltati: 2"), std::string::npos) << result.said;
    EXPECT_NE(drive.run_command({"pdftotext", "doc.pdf", "-"}).said.find("ultima"),
              std::string::npos);
}

TEST(mirxpdf_program, AFullDiskLeavesTheOlderPdf) {
    pdf_drive drive;
    drive.write_print_file({one_text});
    put(drive.at("doc.pdf"), "the one before");
    const auto before = drive.names();
    const auto result =
        drive.run_command({"sh", "-c", "ulimit -f 2; trap '' XFSZ; exec \"$0\" \"$@\"",
                           MIRXPDF_PROGRAM, "--drive", drive.root().string(), report_call});
    EXPECT_EQ(result.exit_code, 1) << result.said;
    EXPECT_EQ(bytes_of(drive.at("doc.pdf")), "the one before");
    EXPECT_EQ(drive.names(), before);
}

TEST(mirxpdf_program, ADemonstrationCompanyGetsTheProgramAndItsSettings) {
    pdf_drive drive;
    const auto make = [&](const char* company) {
        return drive.run_command({DEMO_PROGRAM, drive.root().string(), company, "--orders", "1",
                                  "--articles", "1", "--customers", "1"});
    };
    ASSERT_EQ(make("001").exit_code, 0);
    drive.write_print_file({one_text});
    const std::string program = drive.at("mirwin/mirwin/mirxpdf").string();
    EXPECT_EQ(drive.run_command({program, report_call}).exit_code, 0);
    // Its sample settings set nothing.
    const auto mail = drive.run_command({program, call_with_address("a@b.it")});
    EXPECT_EQ(mail.exit_code, 3);
    EXPECT_NE(mail.said.find("non è configurata"), std::string::npos) << mail.said;

    drive.write_settings("# of the firm\n");
    put(program, "an older one");
    ASSERT_EQ(make("002").exit_code, 0);
    EXPECT_TRUE(bytes_of(program) == bytes_of(MIRXPDF_PROGRAM));
    EXPECT_EQ(bytes_of(drive.at("mirwin/mirwin/mirxpdf.conf")), "# of the firm\n");
}

}  // namespace
}  // namespace vantora::test
