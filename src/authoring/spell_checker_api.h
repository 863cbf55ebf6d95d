// What we use of the spell checker of Windows 8 and later, whose header older targets do not get. Each
// interface is declared up to the last method that we call; identifiers as in Microsoft's spellcheck.h.
#pragma once

#include "win/windows.h"

namespace authoring {

inline constexpr CLSID kSpellCheckerFactory = {
    0x7AB36653, 0x1796, 0x484B, {0xBD, 0xFA, 0xE7, 0x4F, 0x1D, 0xB7, 0xC1, 0xDC}};
inline constexpr IID kISpellCheckerFactory = {
    0x8E018A9D, 0x2415, 0x4677, {0xBF, 0x08, 0x79, 0x4E, 0xA6, 0x1F, 0x94, 0xBB}};

struct SpellingErrorsApi : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Next(IUnknown** error) = 0;  // S_FALSE when there is none
};

struct SpellCheckerApi : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE get_LanguageTag(wchar_t** tag) = 0;
    virtual HRESULT STDMETHODCALLTYPE Check(const wchar_t* text, SpellingErrorsApi** errors) = 0;
    virtual HRESULT STDMETHODCALLTYPE Suggest(const wchar_t* word, IEnumString** suggestions) = 0;
    virtual HRESULT STDMETHODCALLTYPE Add(const wchar_t* word) = 0;
};

struct SpellCheckerFactoryApi : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE get_SupportedLanguages(IEnumString** languages) = 0;
    virtual HRESULT STDMETHODCALLTYPE IsSupported(const wchar_t* language, BOOL* supported) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateSpellChecker(const wchar_t* language,
                                                         SpellCheckerApi** checker) = 0;
};

}  // namespace authoring
