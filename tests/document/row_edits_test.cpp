// Changes of a list's rows: what they make of paths, schedules, selection and count, and the way
// back.
#include "document/row_edits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>
#include <string>

#include "model/window.h"

namespace document {
namespace {

using Rows = std::vector<int>;

/// Rows are letters; the schedule of row "a" is "A". Selected rows stand in brackets, the current
/// one has a star: "a [b]* c".
class Desk : public model::Window {
public:
    model::ListBox List1{this, "List1", model::kSelectMany};
    model::ListBox List2{this, "List2"};
    model::Label Label4{this, "Label4", u"0"};
    model::RowHistory history;
    Text path = u"first.kvs";
    EditedList list{List1, &List2, Label4, history, {&path}};

    explicit Desk(TextView letters = u"") : Window("Desk", u"") {
        AppendRows(list, Of(letters));
        ForgetSteps(list);
    }
    static std::vector<model::ListRow> Of(TextView letters) {
        std::vector<model::ListRow> rows;
        for (const char16_t letter : letters) {
            rows.push_back({Text(1, letter), Text(1, static_cast<char16_t>(letter - 32))});
        }
        return rows;
    }
    void Select(const Rows& rows, int current) {
        for (model::ListBox* box : {&List1, &List2}) {
            box->SelectRows(0, box->ListCount(), false);
            for (const int row : rows) {
                box->Select(row, true);
            }
            box->ListIndex = current;
        }
    }
    std::string Paths() const { return Seen(List1); }
    /// The second list looks the same, and the label counts.
    std::string All() const {
        std::string second = Seen(List2);
        for (char& letter : second) {
            letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
        }
        EXPECT_EQ(second, Seen(List1));
        EXPECT_EQ(text::ToUtf8(Label4.Caption()), std::to_string(List1.ListCount()));
        return Seen(List1);
    }

private:
    static std::string Seen(const model::ListBox& box) {
        std::string seen;
        for (int row = 0; row < box.ListCount(); ++row) {
            const std::string path = text::ToUtf8(box.List(row));
            seen += (row == 0 ? "" : " ") + (box.Selected(row) ? "[" + path + "]" : path) +
                    (box.ListIndex == row ? "*" : "");
        }
        return seen;
    }
};

TEST(RowEdits, ChangeBothListsAndTheCount) {
    struct Case {
        std::string name;
        std::function<void(const EditedList&)> change;
        std::string after;
    };
    const Case cases[]{
        {"append", [](auto& list) { AppendRows(list, Desk::Of(u"xy")); }, "a [b] c [d]* e x y"},
        {"append nothing", [](auto& list) { AppendRows(list, {}); }, "a [b] c [d]* e"},
        {"insert first", [](auto& list) { InsertRows(list, 0, Desk::Of(u"xy")); },
         "x y a [b] c [d]* e"},
        {"insert before the current row", [](auto& list) { InsertRows(list, 3, Desk::Of(u"x")); },
         "a [b] c x [d]* e"},
        {"insert after it", [](auto& list) { InsertRows(list, 4, Desk::Of(u"x")); },
         "a [b] c [d]* x e"},
        {"insert beyond the end", [](auto& list) { InsertRows(list, 99, Desk::Of(u"x")); },
         "a [b] c [d]* e x"},
        {"remove one ahead", [](auto& list) { RemoveRows(list, {0}); }, "[b] c [d]* e"},
        {"remove the current one", [](auto& list) { RemoveRows(list, {3}); }, "a [b] c e*"},
        {"remove two together",
         [](auto& list) {
             RemoveRows(list, {2, 1});
         },
         "a [d]* e"},
        {"remove scattered ones",
         [](auto& list) {
             RemoveRows(list, {4, 0, 2, 2});
         },
         "[b] [d]*"},
        {"remove the end",
         [](auto& list) {
             RemoveRows(list, {3, 4});
         },
         "a [b] c*"},
        {"remove none that is there",
         [](auto& list) {
             RemoveRows(list, {-1, 5});
         },
         "a [b] c [d]* e"},
        {"move one up", [](auto& list) { MoveRows(list, {3}, 0); }, "[d]* a [b] c e"},
        {"move one to the end", [](auto& list) { MoveRows(list, {0}, 5); }, "[b] c [d]* e a"},
        {"move two together",
         [](auto& list) {
             MoveRows(list, {3, 1}, 5);
         },
         "a c e [b] [d]*"},
        {"move two between themselves",
         [](auto& list) {
             MoveRows(list, {1, 3}, 2);
         },
         "a [b] [d]* c e"},
        {"move to where they are",
         [](auto& list) {
             MoveRows(list, {2, 3}, 3);
         },
         "a [b] c [d]* e"},
        {"swap", [](auto& list) { SwapRows(list, 3, 2); }, "a [b] [d]* c e"},
        {"swap far ones", [](auto& list) { SwapRows(list, 0, 4); }, "e [b] c [d]* a"},
        {"swap with none", [](auto& list) { SwapRows(list, 4, 5); }, "a [b] c [d]* e"},
        {"reverse",
         [](auto& list) {
             ReorderRows(list, {4, 3, 2, 1, 0});
         },
         "e [d]* c [b] a"},
        {"turn three round",
         [](auto& list) {
             ReorderRows(list, {0, 3, 1, 2, 4});
         },
         "a [d]* [b] c e"},
        {"replace",
         [](auto& list) {
             ReplaceRows(list, {3, 0}, Desk::Of(u"xy"));
         },
         "y [b] c [x]* e"},
        {"clear", [](auto& list) { ClearRows(list); }, ""},
    };
    for (const Case& entry : cases) {
        SCOPED_TRACE(entry.name);
        Desk desk(u"abcde");
        desk.Select({1, 3}, 3);
        const std::string before = desk.All();
        entry.change(desk.list);
        EXPECT_EQ(desk.All(), entry.after);
        EXPECT_EQ(desk.history.undo.size(), entry.after == before ? 0u : 1u);
        if (entry.after == before) {
            EXPECT_FALSE(Undo(desk.list));
            continue;
        }
        // The way back also restores what a person looks at.
        desk.List1.TopIndex = 2;
        EXPECT_TRUE(Undo(desk.list));
        EXPECT_EQ(desk.All(), before);
        EXPECT_EQ(desk.List1.TopIndex, 0);
        EXPECT_FALSE(Undo(desk.list));
        EXPECT_TRUE(Redo(desk.list));
        EXPECT_EQ(desk.All(), entry.after);
        EXPECT_FALSE(Redo(desk.list));
        EXPECT_TRUE(Undo(desk.list));
        EXPECT_EQ(desk.All(), before);
    }
}

TEST(RowEdits, APathAndAScheduleChangeAlone) {
    Desk desk(u"abc");
    model::ListRow row = RowAt(desk.list, 1);
    row.schedule = u"later";
    ReplaceRows(desk.list, {1}, {row});
    EXPECT_EQ(desk.Paths(), "a b c");
    EXPECT_EQ(desk.List2.List(1), u"later");
    row.path = u"x";
    ReplaceRows(desk.list, {1}, {row});
    EXPECT_EQ(desk.Paths(), "a x c");
    EXPECT_EQ(desk.List2.List(1), u"later");
    ReplaceRows(desk.list, {1}, {row});  // as it is
    EXPECT_EQ(desk.history.undo.size(), 2u);
    Undo(desk.list);
    EXPECT_EQ(desk.Paths(), "a b c");
    EXPECT_EQ(desk.List2.List(1), u"later");
    Undo(desk.list);
    EXPECT_EQ(desk.All(), "a b c");
}

TEST(RowEdits, AListWithoutSchedulesWorksAlike) {
    Desk desk;
    const EditedList plain{desk.List1, nullptr, desk.Label4, desk.history, {}};
    AppendRows(plain, Desk::Of(u"abcd"));
    RemoveRows(plain, {0, 2});
    SwapRows(plain, 0, 1);
    ReplaceRows(plain, {0}, {{u"x", {}}});
    EXPECT_EQ(desk.Paths(), "x b");
    EXPECT_EQ(desk.List2.ListCount(), 0);
    for (int step = 0; step < 4; ++step) {
        EXPECT_TRUE(Undo(plain));
    }
    EXPECT_EQ(desk.Paths(), "");
    EXPECT_EQ(desk.Label4.Caption(), u"0");
}

TEST(UndoStep, HoldsAllChangesWhileItLives) {
    Desk desk(u"abc");
    desk.Select({1}, 1);
    {
        const UndoStep search(desk.list);
        for (const char16_t letter : std::u16string_view(u"vwxyz")) {
            AppendRows(desk.list, Desk::Of(Text(1, letter)));
        }
        EXPECT_FALSE(Undo(desk.list)) << "the step is under way";
        const UndoStep drop(desk.list);
        RemoveRows(desk.list, {0});
        MoveRows(desk.list, {0}, 3);
    }
    EXPECT_EQ(desk.All(), "c v [b]* w x y z");
    ASSERT_EQ(desk.history.undo.size(), 1u);
    EXPECT_EQ(desk.history.undo[0].edits.size(), 3u) << "what was added one by one is one edit";
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_EQ(desk.All(), "a [b]* c");
    EXPECT_TRUE(Redo(desk.list));
    EXPECT_EQ(desk.All(), "c v [b]* w x y z");
}

TEST(UndoStep, RowsAddedInTwoPlacesLeaveBoth) {
    Desk desk(u"abc");
    {
        const UndoStep step(desk.list);
        InsertRows(desk.list, 1, Desk::Of(u"xy"));
        InsertRows(desk.list, 5, Desk::Of(u"z"));
        InsertRows(desk.list, 0, Desk::Of(u"w"));
    }
    EXPECT_EQ(desk.All(), "w a x y b c z");
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_EQ(desk.All(), "a b c");
}

TEST(UndoStep, OneThatChangedNothingLeavesWhatCanBeRedone) {
    Desk desk(u"ab");
    RemoveRows(desk.list, {0});
    Undo(desk.list);
    { const UndoStep nothing(desk.list); }
    RemoveRows(desk.list, {7});
    EXPECT_TRUE(Redo(desk.list));
    EXPECT_EQ(desk.All(), "b");
    Undo(desk.list);
    AppendRows(desk.list, Desk::Of(u"c"));
    EXPECT_FALSE(Redo(desk.list)) << "another step came";
    EXPECT_EQ(desk.All(), "a b c");
}

TEST(UndoStep, BringsTheIdentityBackThatItChanged) {
    Desk desk(u"ab");
    AppendRows(desk.list, Desk::Of(u"c"));
    desk.path = u"saved.kvs";  // no step: saving gives the rows another name
    {
        const UndoStep opening(desk.list);
        ClearRows(desk.list);
        AppendRows(desk.list, Desk::Of(u"xy"));
        desk.path = u"second.kvs";
    }
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_EQ(desk.All(), "a b c");
    EXPECT_EQ(desk.path, u"saved.kvs");
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_EQ(desk.All(), "a b");
    EXPECT_EQ(desk.path, u"saved.kvs") << "the step that added a row did not name it";
    EXPECT_TRUE(Redo(desk.list));
    EXPECT_TRUE(Redo(desk.list));
    EXPECT_EQ(desk.All(), "x y");
    EXPECT_EQ(desk.path, u"second.kvs");
    {
        const UndoStep naming(desk.list);
        desk.path = u"third.kvs";
    }
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_EQ(desk.path, u"second.kvs");
}

TEST(UndoStep, TheOldestAreForgotten) {
    Desk desk;
    for (int i = 0; i < kMostUndoSteps + 3; ++i) {
        AppendRows(desk.list, Desk::Of(u"a"));
    }
    while (Undo(desk.list)) {
    }
    EXPECT_EQ(desk.List1.ListCount(), 3);
    while (Redo(desk.list)) {
    }
    EXPECT_EQ(desk.List1.ListCount(), kMostUndoSteps + 3);
    ForgetSteps(desk.list);
    EXPECT_FALSE(Undo(desk.list));
}

TEST(UndoStep, EndsWithTheProgram) {
    Desk desk(u"a");
    try {
        const UndoStep search(desk.list);
        AppendRows(desk.list, Desk::Of(u"b"));
        throw 1;
    } catch (int) {
    }
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_EQ(desk.All(), "a");
}

/// Any changes in any order: each state that was seen comes back, to and fro.
TEST(UndoStep, AnyStepsComeBackInTheirOrder) {
    std::mt19937 random(7);
    const auto upTo = [&](int most) { return static_cast<int>(random() % (most + 1u)); };
    for (int round = 0; round < 30; ++round) {
        Desk desk(u"abcdefgh");
        std::vector<std::string> seen{desk.All()};
        for (int step = 0; step < 40; ++step) {
            const int count = desk.List1.ListCount();
            Rows some;
            for (int row = 0; row < count; ++row) {
                if (random() % 3 == 0) {
                    some.push_back(row);
                }
            }
            const size_t steps = desk.history.undo.size();
            desk.Select(some, count - 1);
            seen.back() = desk.All();  // the selection of the moment is what comes back
            switch (random() % 5) {
                case 0:
                    InsertRows(desk.list, upTo(count), Desk::Of(u"xyz"));
                    break;
                case 1:
                    RemoveRows(desk.list, some);
                    break;
                case 2:
                    MoveRows(desk.list, some, upTo(count));
                    break;
                case 3: {
                    Rows order(static_cast<size_t>(count));
                    std::iota(order.begin(), order.end(), 0);
                    std::shuffle(order.begin(), order.end(), random);
                    ReorderRows(desk.list, order);
                    break;
                }
                default:
                    ReplaceRows(desk.list, some, Desk::Of(Text(some.size(), u'q')));
            }
            if (desk.history.undo.size() > steps) {
                seen.push_back(desk.All());
            }
        }
        seen.back() = desk.All();
        for (size_t i = seen.size() - 1; i-- > 0;) {
            ASSERT_TRUE(Undo(desk.list));
            ASSERT_EQ(desk.All(), seen[i]) << round << ", " << i;
        }
        ASSERT_FALSE(Undo(desk.list));
        for (size_t i = 1; i < seen.size(); ++i) {
            ASSERT_TRUE(Redo(desk.list));
            ASSERT_EQ(desk.All(), seen[i]) << round << ", " << i;
        }
    }
}

TEST(UndoStep, ThirtyThousandRowsGoAtOnce) {
    struct Ear : model::Listener {
        int changes = 0;
        void RowsChanged(model::Control&, const model::RowChange&) override { ++changes; }
    };
    Desk desk;
    Ear ear;
    desk.List1.Listen(&ear);
    AppendRows(desk.list, Desk::Of(Text(30000, u'a')));
    Rows odd, order;
    for (int row = 0; row < 30000; ++row) {
        order.push_back(29999 - row);
        if (row % 2 == 1) {
            odd.push_back(row);
        }
    }
    ReorderRows(desk.list, order);
    RemoveRows(desk.list, odd);
    EXPECT_EQ(desk.List1.ListCount(), 15000);
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_TRUE(Undo(desk.list));
    EXPECT_EQ(desk.List1.ListCount(), 0);
    desk.List1.Unlisten(&ear);
    EXPECT_LE(ear.changes, 10) << "a view follows a handful of changes";
}

}  // namespace
}  // namespace document
