#include "authoring/core/spell_words.h"

#include <gtest/gtest.h>

#include <string>

#include "authoring/core/spelling_pass.h"

namespace {

using namespace authoring;

std::string WordsOf(std::string_view page, const LetterTable& letters = kAsciiLetters) {
    std::string words;
    for (const Word& word : FindWords(page, letters)) {
        words.append(page.substr(word.start, word.length)).append("|");
    }
    return words;
}

TEST(SpellWords, AreWhatAReaderOfThePageSees) {
    EXPECT_EQ(WordsOf("Plain words, and (more) of-them."), "Plain|words|and|more|of|them|");
    EXPECT_EQ(WordsOf("<BODY BGCOLOR=\"red\" alt='a > b'>Some<br>text</BODY>"), "Some|text|");
    EXPECT_EQ(WordsOf("don't 'quoted' rock'n'roll it\x92s"), "don't|quoted|rock'n'roll|it\x92s|");
    EXPECT_EQ(WordsOf("ab&nbsp;cd&amp;ef &lt;gh&gt; R&D"), "ab|cd|ef|gh|");
    LetterTable letters = kAsciiLetters;
    letters[0xE9] = true;
    EXPECT_EQ(WordsOf("caf\xE9 na\xEFve", letters), "caf\xE9|na|ve|");
}

TEST(SpellWords, LeaveOutWhatNobodySpells) {
    EXPECT_EQ(WordsOf("caf&eacute; &Uuml;ber na&#239;ve stra&szlig;e it&#8217;s"), "it|");
    EXPECT_EQ(WordsOf("see http://example.com/page or me@example.com in C:\\dir\\file or index.htm now"),
              "see|or|in|or|now|");
    EXPECT_EQ(WordsOf("mp3 x_y 4th I a"), "");
    EXPECT_EQ(WordsOf("yes<!-- no <b> no -->yes<% no > no %>yes<?php no->no ?>yes"), "yes|yes|yes|yes|");
    EXPECT_EQ(WordsOf("<SCRIPT>no <b> no</script >yes<style type=x>no</STYLE>yes<stylish>yes"),
              "yes|yes|yes|");
    EXPECT_EQ(WordsOf("<a href=<%= no > no %>>yes"), "yes|");
}

TEST(SpellWords, ALooseSignIsNoTag) {
    EXPECT_EQ(WordsOf("if up < down and <unclosed <b>bold</b>"), "if|up|down|and|unclosed|bold|");
    EXPECT_EQ(WordsOf("<b title=\"open>yes <i>more"), "yes|more|");
    EXPECT_EQ(WordsOf("&unended ab & cd &; ef<!-- gh"), "unended|ab|cd|ef|");
}

class KnowsGood : public SpellDictionary {
 public:
    bool knows(const std::string& word) override {
        asked += word + "|";
        return word == "good";
    }
    std::vector<std::string> suggestions(const std::string&) override { return {}; }
    void add(const std::string& word) override { added += word; }

    std::string asked, added;
};

TEST(SpellingPass, StopsAtUnknownWordsOnceTheyAreNotIgnored) {
    KnowsGood dictionary;
    SpellingPass pass("good aa good bb aa cc bb cc dd", kAsciiLetters, dictionary);
    std::string stops;
    while (pass.next()) {
        stops += pass.word() + "|";
        if (pass.word() == "aa") pass.ignoreAll();
        if (pass.word() == "bb") pass.add();
        if (pass.word() == "cc") pass.change("new and longer");
    }
    EXPECT_EQ(stops, "aa|bb|cc|cc|dd|");
    EXPECT_EQ(dictionary.added, "bb");
    EXPECT_EQ(dictionary.asked.find("good", 4), std::string::npos) << "a known word is asked about once";
    EXPECT_EQ(pass.result(), "good aa good bb aa new and longer bb new and longer dd");
    EXPECT_TRUE(pass.isChanged());
}

TEST(SpellingPass, AWordMayBeTakenOutAndItsSurroundingsAreShown) {
    KnowsGood dictionary;
    const std::string line(40, 'x');
    SpellingPass pass("1 " + line + " teh\r\n2 " + line, kAsciiLetters, dictionary);
    ASSERT_TRUE(pass.next() && pass.next());
    EXPECT_EQ(pass.word(), "teh");
    EXPECT_EQ(pass.context(), "teh  2");
    pass.change("");
    EXPECT_EQ(pass.result(), "1 " + line + " \r\n2 " + line);
}

}  // namespace
