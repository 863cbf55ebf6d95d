// The C library's converters in place of Windows' code pages.
#pragma once

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "document/core/code_pages.h"

class IconvCodePages : public document::CodePages {
 public:
    explicit IconvCodePages(unsigned ansi = 1252) : ansi_(ansi) {}

    ~IconvCodePages() {
        for (const auto& [key, converter] : converters_) ::iconv_close(converter);
    }

    unsigned ansi() const override { return ansi_; }

    bool has(unsigned codePage) const override { return NameOf(codePage) != nullptr; }

    std::size_t characterLength(unsigned codePage, std::string_view bytes) const override {
        const auto byte = [&](std::size_t i) { return i < bytes.size() ? bytes[i] & 0xFF : 0; };
        const int lead = byte(0);
        std::size_t length = 1;
        if (codePage == 932)
            length = (lead >= 0x81 && lead <= 0x9F) || (lead >= 0xE0 && lead <= 0xFC) ? 2 : 1;
        if (codePage == 936 || codePage == 950 || codePage == 54936)
            length = lead >= 0x81 && lead <= 0xFE ? 2 : 1;
        if (codePage == 54936 && length == 2 && byte(1) >= '0' && byte(1) <= '9') length = 4;
        return std::min(length, bytes.size());
    }

    std::u16string toUnicode(unsigned codePage, std::string_view bytes) const override {
        const std::string converted = convert(codePage, true, bytes, {"\xFD\xFF", 2});
        std::u16string text;
        for (std::size_t i = 0; i < converted.size(); i += 2)
            text += static_cast<char16_t>((converted[i] & 0xFF) | (converted[i + 1] & 0xFF) << 8);
        return text;
    }

    std::string fromUnicode(unsigned codePage, std::u16string_view text) const override {
        std::string units;
        for (const char16_t unit : text) {
            units += static_cast<char>(unit & 0xFF);
            units += static_cast<char>(unit >> 8);
        }
        return convert(codePage, false, units, "?");
    }

 private:
    static const char* NameOf(unsigned codePage) {
        static const std::map<unsigned, const char*> names{
            {37, "IBM037"},   {932, "CP932"},   {936, "CP936"},    {950, "CP950"},
            {1251, "CP1251"}, {1252, "CP1252"}, {54936, "GB18030"}};
        const auto name = names.find(codePage);
        return name == names.end() ? nullptr : name->second;
    }

    // Puts the substitute in place of each byte or unit of the input that is not a character.
    std::string convert(unsigned codePage, bool toUnicode, std::string_view input,
                        std::string_view substitute) const {
        const char* name = NameOf(codePage);
        if (name == nullptr) return {};
        iconv_t& converter = converters_[{codePage, toUnicode}];
        if (converter == nullptr)
            converter = ::iconv_open(toUnicode ? "UTF-16LE" : name, toUnicode ? name : "UTF-16LE");
        ::iconv(converter, nullptr, nullptr, nullptr, nullptr);
        std::string result;
        char* in = const_cast<char*>(input.data());
        std::size_t inLeft = input.size();
        while (inLeft > 0) {
            char buffer[4096];
            char* out = buffer;
            std::size_t outLeft = sizeof buffer;
            const std::size_t failed = ::iconv(converter, &in, &inLeft, &out, &outLeft);
            result.append(buffer, sizeof buffer - outLeft);
            if (failed != static_cast<std::size_t>(-1) || errno == E2BIG) continue;
            const std::size_t skipped = std::min<std::size_t>(toUnicode ? 1 : 2, inLeft);
            in += skipped;
            inLeft -= skipped;
            result += substitute;
        }
        return result;
    }

    unsigned ansi_;
    mutable std::map<std::pair<unsigned, bool>, iconv_t> converters_;
};
