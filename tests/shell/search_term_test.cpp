#include "shell/search_term.h"

#include <gtest/gtest.h>

namespace velk {
namespace {

TEST(Search_Term, finds_letters_whatever_their_case_and_accents) {
    const std::pair<const char*, const char*> found[] = {{" LINDQ ", "Ada Lindqvist"},
                                                         {"jose nunez", "José Ñuñez"},
                                                         {"Ñ", "nunez"},
                                                         {"петр", "Анна ПЕТРОВА"},
                                                         {"ö", "o\u0308"},
                                                         {"محمد", "مُحَمَّد"},
                                                         {"ok", "\U0001F642 ok \xff"}};
    for (const auto& [typed, text] : found)
        EXPECT_TRUE(Search_Term(QString::fromUtf8(typed)).is_in(text)) << typed;
    EXPECT_FALSE(Search_Term(QString::fromUtf8("小雨")).is_in("林小雪"));
}

}  // namespace
}  // namespace velk
