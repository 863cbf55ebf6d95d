#include <regex>
#include <string>

#include <gtest/gtest.h>

#include "help/core/help_texts.h"
#include "help/core/links.h"

namespace {

// Whether a text is so many paragraphs that begin with three blanks each.
bool HasParagraphs(std::string_view words, const std::string& count) {
    const std::regex form("(?:   [^ \r\n][^\r\n]{5,}(?:\r\n\r\n|$)){" + count + "}");
    return std::regex_match(std::string(words), form) && !words.ends_with("\n");
}

TEST(HelpTexts, EveryTopicAndEveryButtonHasItsParagraphs) {
    for (const help::Topic& topic : help::kTopics)
        EXPECT_TRUE(HasParagraphs(topic.words, "2,5")) << topic.words;
    EXPECT_TRUE(HasParagraphs(help::kIntroWords, "2"));
    for (std::size_t i = 0; i < 17; ++i) {
        const std::string words = help::ButtonWords(i);
        const std::size_t heading = words.find("\r\n\r\n");
        ASSERT_NE(heading, std::string::npos) << i;
        EXPECT_TRUE(HasParagraphs(words.substr(heading + 4), "1,5")) << words;
        const bool isShared = i >= 6 && i <= 8;
        EXPECT_EQ(i > 0 && words == help::ButtonWords(i - 1), isShared) << i;
    }
}

TEST(Links, AnAddressWithAnAtSignIsWrittenToAndAnyOtherOpened) {
    EXPECT_EQ(help::LinkTarget("http://www.example.com/"), "http://www.example.com/");
    EXPECT_EQ(help::LinkTarget("  me@example.com "), "mailto:me@example.com");
}

}  // namespace
