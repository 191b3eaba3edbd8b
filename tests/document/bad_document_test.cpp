// Documents that are cut, garbled, or that lie about their counts; files that cannot be opened.
#include <gtest/gtest.h>

#include "document_support.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"

namespace document_tests {
namespace {

/// Whatever the file held: one message at most, and a record that the program can go on with.
void ExpectSane(const Program& program) {
    EXPECT_TRUE(program.Accepted() || program.Refused());
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
    EXPECT_EQ(program.State().ReadingDocument, 0);
    const auto& form3 = program.app.windows.form3;
    EXPECT_EQ(form3.List1.ListCount(), form3.List2.ListCount());
    EXPECT_GE(program.State().SlideIntervalSec, 1);
    EXPECT_GE(program.app.windows.form1.Timer1.Interval, 1000);
    EXPECT_GE(program.State().CdProgramCount, 0);
    EXPECT_GE(program.State().SoundListCount, 0);
    EXPECT_GE(program.State().SlideListEnd, 0);
}

TEST(BadDocument, CutAtEveryByte) {
    Program made;
    const std::string whole = text::EncodeFile(TextOf(FullDocument()), made.codePage);
    const size_t lastSlide = whole.rfind("C:\\pic\\");
    for (size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        Program program;
        program.files.Put(kPath, whole.substr(0, length));
        program.app.state.BaseFolder = kBase;
        document::ReadShowDocument(program.app, kPath);
        ExpectSane(program);
        // From the last slide on a file may end, within that slide's name too.
        if (length <= lastSlide) {
            EXPECT_TRUE(program.Refused());
        }
    }
}

TEST(BadDocument, GarbledAtEveryByte) {
    Program made;
    const std::string whole = text::EncodeFile(TextOf(FullDocument()), made.codePage);
    int refused = 0;
    for (size_t place = 0; place < whole.size(); ++place) {
        for (char garbage : {'\0', '9', '-', ',', '\r', '\n', '\x81', '\xFF'}) {
            Program program;
            std::string bytes = whole;
            bytes[place] = garbage;
            program.files.Put(kPath, bytes);
            program.app.state.BaseFolder = kBase;
            document::ReadShowDocument(program.app, kPath);
            ExpectSane(program);
            refused += program.Refused() ? 1 : 0;
        }
    }
    EXPECT_GT(refused, 0);
}

TEST(BadDocument, NumbersThatAreNoneOrDoNotFit) {
    for (const char16_t* number :
         {u" 32768 ", u"-32769", u" 99999999999999999999 ", u"x", u"1x", u"1 2", u"0x10", u"&H10",
          u"1e3", u"--1", u"1-", u"1.2.3", u".", u"-", u"３"}) {
        for (int line : {4, 5, 8, 14, 23, 29, 33, 37, 44, 46}) {
            Program program;
            program.Read(With(FullDocument(), line, {number}));
            EXPECT_TRUE(program.Refused()) << line << " " << text::ToUtf8(number);
        }
    }
    for (const char16_t* number : {u" 2147483648 ", u"-2147483649", u"1e3"}) {
        Program program;
        program.Read(With(FullDocument(), 3, {number}));
        EXPECT_TRUE(program.Refused()) << text::ToUtf8(number);
    }
    Program limits;
    limits.Read(With(With(FullDocument(), 9, {u"-32768"}), 11, {u" 32767.5"}));
    EXPECT_TRUE(limits.Refused());  // rounds to 32768
    Program fits;
    fits.Read(With(With(FullDocument(), 9, {u"-32768.5"}), 11, {u" 32767.4"}));
    EXPECT_TRUE(fits.Accepted());  // half to even: -32768
    EXPECT_EQ(fits.State().ShowEffectSpeed, -32768);
    EXPECT_EQ(fits.State().EraseEffectSpeed, 32767);
}

TEST(BadDocument, TextualNumbersThatDoNotFit) {
    for (int line : {22, 47}) {
        Program program;
        program.Read(With(FullDocument(), line, {u"99999"}));
        EXPECT_TRUE(program.Refused());
        Program words;
        words.Read(With(FullDocument(), line, {u"abc"}));
        EXPECT_TRUE(words.Accepted());  // what is no number counts 0
    }
}

TEST(BadDocument, CountsThatLie) {
    for (int line : {26, 31, 39}) {
        for (const char16_t* count : {u" 60 ", u" 32766 ", u" 32767 ", u" 70000 "}) {
            Program program;
            program.Read(With(FullDocument(), line, {count}));
            EXPECT_TRUE(program.Refused()) << line;
            ExpectSane(program);
        }
    }
    // Negative: none is read, so that the entries are taken for what follows.
    Program programme;
    programme.Read(With(With(FullDocument(), 31, {u"-5"}), 32, {}));
    EXPECT_TRUE(programme.Accepted());
    EXPECT_EQ(programme.State().CdProgramCount, 0);
    Program slides;
    Lines lines = Without(With(FullDocument(), 26, {u"-5"}), 27, 27);
    slides.Read(Without(lines, 49, 49));
    EXPECT_TRUE(slides.Accepted());
    EXPECT_TRUE(slides.List1().empty());
}

TEST(BadDocument, WhatWasReadStaysAndMenusFollowIt) {
    Program program;
    program.app.windows.form3.List1.AddItem(u"C:\\old.jpg");
    program.app.windows.form3.List2.AddItem(kBlankRow);
    program.app.state.DocumentPath = u"C:\\old.kvs";
    program.app.state.ResumeIndex = 9;
    program.app.windows.form1.Caption = u"before";
    program.Read(UpTo(FullDocument(), 28));
    EXPECT_TRUE(program.Refused());
    EXPECT_EQ(program.List1().size(), 2u);
    EXPECT_EQ(program.State().RepeatFlag, 1);
    EXPECT_TRUE(program.app.windows.form1.mnuKUFL(1).Checked);
    EXPECT_TRUE(program.app.windows.form1.mnuHKO(2).Checked);
    EXPECT_EQ(program.State().DocumentPath, u"C:\\old.kvs");
    EXPECT_EQ(program.State().ResumeIndex, 9);
    EXPECT_EQ(program.app.windows.form1.Caption(), u"before");
}

TEST(BadDocument, ARefusedTagLeavesTheLists) {
    Program program;
    program.app.state.RandomFlag = 0;
    program.app.state.SlideListEnd = 2;
    program.app.state.SlideList.Set(1, u"C:\\old.jpg");
    program.app.windows.form3.List1.AddItem(u"C:\\old.jpg");
    program.app.windows.form3.List2.AddItem(kRow);
    program.ReadText(u"<html>\r\n");
    EXPECT_TRUE(program.Refused());
    EXPECT_EQ(program.List1(), std::vector<Text>{u"C:\\old.jpg"});
    EXPECT_EQ(program.List2(), std::vector<Text>{kRow});
    EXPECT_EQ(program.State().SlideList(1), u"C:\\old.jpg");
    EXPECT_EQ(program.State().SlideListEnd, 2);
    EXPECT_EQ(program.State().RandomFlag, 1);
    EXPECT_TRUE(program.app.windows.form1.mnuRANDFL(1).Checked);
}

TEST(BadDocument, AFileThatCannotBeOpenedChangesNothing) {
    Program missing, unreadable;
    unreadable.PutText(kPath, TextOf(FullDocument()));
    unreadable.files.MakeUnreadable(kPath);
    for (Program* program : {&missing, &unreadable}) {
        program->app.state.RandomFlag = 0;
        program->app.windows.form3.Command16.Enabled = true;
        EXPECT_FALSE(document::ReadShowDocument(program->app, kPath));
        ASSERT_EQ(program->dialogs.messages.size(), 1u);
        EXPECT_NE(program->dialogs.messages[0].text, u"");
        EXPECT_EQ(program->dialogs.messages[0].title, u"");
        EXPECT_EQ(program->State().RandomFlag, 0);
        EXPECT_EQ(program->State().ShowAbort, 0);
        EXPECT_TRUE(program->app.windows.form3.Command16.Enabled);
        EXPECT_EQ(program->app.windows.form1.MousePointer, model::kPointerNormal);
    }
}

TEST(BadDocument, AMissingFileEndsAProgramThatWasStartedWithIt) {
    Program program;
    program.app.state.LoadingFromStart = 1;
    EXPECT_THROW(document::ReadShowDocument(program.app, kPath), platform::ProgramEnd);
    EXPECT_EQ(program.dialogs.messages.size(), 1u);
}

TEST(BadDocument, ARefusedFileEndsAProgramThatWasStartedWithIt) {
    Program program;
    program.app.state.LoadingFromStart = 1;
    EXPECT_THROW(program.ReadText(u"nothing\r\n"), platform::ProgramEnd);
    EXPECT_TRUE(program.Refused());
    Program good;
    good.app.state.LoadingFromStart = 1;
    EXPECT_NO_THROW(good.Read(FullDocument()));
}

Lines WithSlides(int count) {
    std::vector<Text> slides, rows;
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        slides.push_back(u"C:\\pic\\" + Text(number.begin(), number.end()) + u".jpg");
        rows.push_back(u"-" + kBlankRow);
    }
    const std::string number = std::to_string(count);
    Lines lines = With(FullDocument(), 26, {Text(number.begin(), number.end())});
    return With(With(lines, 27, slides), 49, rows);
}

TEST(BadDocument, ListsAtAndBeyondTheirCapacity) {
    for (int count : {30000, 30001, 30010}) {
        Program program;
        program.Read(WithSlides(count));
        EXPECT_TRUE(program.Accepted()) << count;
        EXPECT_EQ(program.State().SlideListEnd, count + 1);
        EXPECT_EQ(program.app.windows.form3.List1.ListCount(), count);
        EXPECT_NE(program.State().SlideList(count), u"");
        EXPECT_EQ(program.State().ScheduleTo(count), Text(16, u' '));
    }
    Program program;
    program.Read(WithSlides(30011));
    EXPECT_TRUE(program.Refused());
    ExpectSane(program);
}

}  // namespace
}  // namespace document_tests
