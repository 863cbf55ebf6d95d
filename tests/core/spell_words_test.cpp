#include "authoring/spelling/core/spell_words.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <utility>
#include <vector>

#include "authoring/spelling/core/spell_languages.h"
#include "authoring/spelling/core/spell_text.h"
#include "authoring/spelling/core/spelling_pass.h"
#include "win/core/utf.h"

namespace {

using namespace authoring;

bool IsLetter(char32_t c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == U'\u00E9' || c == U'\u0142' ||
           c == U'\U00010000';
}

std::string WordsOf(std::string_view page) {
    const std::u16string text = win::Utf16FromUtf8(page);
    std::u16string words;
    for (const Word& word : FindWords(text, IsLetter))
        words.append(text, word.start, word.length).append(u"|");
    return win::Utf8FromUtf16(words);
}

TEST(SpellWords, AreWhatAReaderOfThePageSees) {
    EXPECT_EQ(WordsOf("Plain words, and (more) of-them."), "Plain|words|and|more|of|them|");
    EXPECT_EQ(WordsOf("<BODY title=\"> no\" alt='> no'>Some<br>text</BODY>"), "Some|text|");
    EXPECT_EQ(WordsOf("don't 'quoted' rock'n'roll it\u2019s"), "don't|quoted|rock'n'roll|it\u2019s|");
    EXPECT_EQ(WordsOf("ab&nbsp;cd&amp;ef &lt;gh&gt; R&D"), "ab|cd|ef|gh|");
    EXPECT_EQ(WordsOf("caf\u00E9 ma\u0142y na\u00EFve"), "caf\u00E9|ma\u0142y|na|ve|");
    EXPECT_EQ(WordsOf("\U00010000's ok\U0001F600ok \U00010000 x\U00010000.x \U00010000"),
              "\U00010000's|ok|ok|");
}

TEST(SpellWords, LeaveOutWhatIsNoPlainWord) {
    EXPECT_EQ(WordsOf("caf&eacute; &Uuml;ber na&#239;ve stra&szlig;e it&#8217;s"), "it|");
    EXPECT_EQ(WordsOf("see http://example.com/page or me@example.com in C:\\dir\\file or index.htm now"),
              "see|or|in|or|now|");
    EXPECT_EQ(WordsOf("mp3 x_y 4th I a"), "");
    EXPECT_EQ(WordsOf("yes<!-- no <b> no -->yes<% no > no %>yes<?php no->no ?>yes"), "yes|yes|yes|yes|");
    EXPECT_EQ(WordsOf("<SCRIPT>no <b> no</script >yes<style type=x>no</STYLE>yes<stylish>yes"),
              "yes|yes|yes|");
    EXPECT_EQ(WordsOf("<a href=<%= no > no %>>yes"), "yes|");
}

TEST(SpellWords, ALooseBracketOrAmpersandIsNoMarkup) {
    EXPECT_EQ(WordsOf("if up < down and <unclosed <b>bold</b>"), "if|up|down|and|unclosed|bold|");
    EXPECT_EQ(WordsOf("<b title=\"open>yes <i>more"), "yes|more|");
    EXPECT_EQ(WordsOf("&unended ab & cd &; &muchtoolong; ef<!-- gh"), "unended|ab|cd|muchtoolong|ef|");
}

TEST(SpellLanguage, IsThatOfTheFirstTagThatNamesOne) {
    const std::pair<const char16_t*, const char16_t*> kPages[] = {
        {u"<HTML\r\n DIR=ltr LANG = 'pt-BR'><p lang=de>", u"pt-BR"},
        {u"<!-- <p lang=de> --><script language=x>'<p lang=de>'</script><br/><p xml:lang=\"fr\"/>", u"fr"},
        {u"<html lang=\"\"><b title='a > lang=de'><i class=lang data-lang=de><a lang>x < lang=de>", u""},
        {u"<p lang=en_US><p lang=e><p lang='d e'><p lang=\"cy\"", u""},
        {u"<p lang=en_US><p nowrap/lang=x-a><", u"x-a"}};
    for (const auto& [page, language] : kPages) EXPECT_EQ(PageLanguage(page), language);
}

TEST(SpellLanguage, IsNeverReplacedByAnother) {
    using Tags = std::vector<std::string>;
    EXPECT_EQ(LanguagesToTry("", "de-AT", {"de-DE", "en-US"}), (Tags{"de-AT", "de"}));
    EXPECT_EQ(LanguagesToTry("zh-Hant-TW", "en-US", {}), (Tags{"zh-Hant-TW", "zh-Hant", "zh"}));
    EXPECT_EQ(LanguagesToTry("en", "en-GB", {"de-DE", "EN-US"}), (Tags{"en", "en-GB", "EN-US"}));
    EXPECT_EQ(LanguagesToTry("fr", "en-GB", {"fry-NL", "f"}), Tags{"fr"});
}

TEST(SpellText, ParagraphMarksBecomeLineEndsAndTheLastOneGoes) {
    EXPECT_EQ(TextFromWordProcessor(u"one\rtwo\r"), u"one\r\ntwo");
    EXPECT_EQ(TextFromWordProcessor(u"one\r\ntwo\r\n"), u"one\r\ntwo");
    for (const char16_t* text : {u"", u"x", u"\r", u"\r\n"}) EXPECT_EQ(TextFromWordProcessor(text), u"");
}

class KnowsGood : public SpellDictionary {
 public:
    bool knows(const std::u16string& word) override {
        if (word == u"unlucky") throw std::bad_alloc();
        return word == u"good";
    }
    std::vector<std::u16string> suggestions(const std::u16string&) override { throw std::bad_alloc(); }
    void add(const std::u16string&) override {}
};

TEST(SpellingPass, StopsAtUnknownWordsThatAreNotIgnoredAndShowsTheirContext) {
    KnowsGood dictionary;
    const std::u16string ignored = u"aa good bb aa bb 1 ", line(40, u'x');
    SpellingPass pass(ignored + line + u" teh\r\n2 " + line, IsLetter, dictionary);
    ASSERT_TRUE(pass.next());
    pass.ignoreAll();
    ASSERT_TRUE(pass.next());
    pass.add();
    ASSERT_TRUE(pass.next() && pass.next());
    EXPECT_EQ(pass.word(), u"teh");
    EXPECT_EQ(pass.context(), u"teh  2");
    EXPECT_FALSE(pass.hasFailed());
    EXPECT_TRUE(pass.suggestions().empty() && pass.hasFailed());
    pass.change(u"");
    ASSERT_TRUE(pass.next());
    pass.change(line + line);
    EXPECT_FALSE(pass.next());
    EXPECT_EQ(pass.result(), ignored + line + u" \r\n2 " + line + line);
    EXPECT_TRUE(pass.isChanged());
    SpellingPass failing(u"unlucky", IsLetter, dictionary);
    EXPECT_TRUE(failing.next() && failing.hasFailed());
}

}  // namespace
