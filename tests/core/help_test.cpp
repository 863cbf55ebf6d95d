#include <string>

#include <gtest/gtest.h>

#include "help/core/help_texts.h"
#include "help/core/links.h"

namespace {

// The paragraphs of a text, or an empty list when one of them does not begin with three blanks and then a
// word, or when a line ends in anything but CR LF.
std::size_t Paragraphs(std::string words) {
    std::size_t count = 0;
    for (;;) {
        const std::size_t end = words.find("\r\n\r\n");
        const std::string paragraph = words.substr(0, end);
        if (paragraph.size() < 10 || paragraph.substr(0, 3) != "   " || paragraph[3] == ' ') return 0;
        if (paragraph.find_first_of("\r\n") != std::string::npos) return 0;
        ++count;
        if (end == std::string::npos) return count;
        words.erase(0, end + 4);
    }
}

TEST(HelpTexts, EveryTopicHasTwoToFiveParagraphs) {
    for (const help::Topic& topic : help::kTopics) {
        EXPECT_GE(Paragraphs(topic.words), 2U) << topic.heading;
        EXPECT_LE(Paragraphs(topic.words), 5U) << topic.heading;
    }
    EXPECT_EQ(Paragraphs(help::kIntroWords), 2U);
}

TEST(HelpTexts, EveryButtonHasAHeadingOfItsOwnAndThenParagraphs) {
    for (std::size_t i = 0; i < 17; ++i) {
        const std::string words = help::ButtonWords(i);
        const std::size_t heading = words.find("\r\n\r\n");
        ASSERT_NE(heading, std::string::npos) << i;
        EXPECT_GE(Paragraphs(words.substr(heading + 4)), 1U) << words;
        const bool isShared = i >= 6 && i <= 8;
        EXPECT_EQ(i > 0 && words == help::ButtonWords(i - 1), isShared) << i;
    }
    EXPECT_EQ(help::ButtonWords(17), "");
}

TEST(Links, AnAddressWithAnAtSignIsWrittenToAndAnyOtherOpened) {
    EXPECT_EQ(help::LinkTarget("http://www.example.com/"), "http://www.example.com/");
    EXPECT_EQ(help::LinkTarget("  me@example.com "), "mailto:me@example.com");
}

}  // namespace
