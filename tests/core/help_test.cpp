#include <regex>
#include <string>

#include <gtest/gtest.h>

#include "help/core/help_texts.h"
#include "help/core/links.h"

namespace {

TEST(HelpTexts, EveryTopicAndEveryButtonHasItsParagraphs) {
    const std::regex words("(   [^ \r\n][^\r\n]{5,}(\r\n\r\n(?!$)|$)){2,5}");
    for (const help::Topic& topic : help::kTopics)
        EXPECT_TRUE(std::regex_match(topic.words, words)) << topic.words;
    EXPECT_TRUE(std::regex_match(help::kIntroWords, words));
    const std::regex description("[^\r\n]+\r\n\r\n(   [^ \r\n][^\r\n]{5,}(\r\n\r\n(?!$)|$)){1,5}");
    for (std::size_t i = 0; i < 17; ++i)
        EXPECT_TRUE(std::regex_match(help::ButtonWords(i), description)) << help::ButtonWords(i);
}

TEST(Links, AnAddressWithAnAtSignIsWrittenToAndAnyOtherOpened) {
    EXPECT_EQ(help::LinkTarget("http://www.example.com/"), "http://www.example.com/");
    EXPECT_EQ(help::LinkTarget("  me@example.com "), "mailto:me@example.com");
}

}  // namespace
