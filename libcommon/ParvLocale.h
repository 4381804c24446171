#pragma once

#include <QString>
#include <QStringList>

// The choice of the user-interface language.
//
// A language is named by a code of three lower-case letters; its translation is the
// resource file ":/" + code + ".qm". There are 20 codes, numbered 0 to 19.
//
// Main thread only, before any other thread exists. No state is kept between calls.
class ParvLocale {
 public:
  // The code for the system locale: the one that the locale selects, or "enu" where it
  // selects none or its translation is not compiled in. Never empty.
  static QString getDefaultLanguage();

  // Whether the translation of `lang` is compiled in; it is not opened.
  static bool isLanguageInstalled(const QString& lang);

  // "enu", the language that everything falls back to.
  static QString getStrLanguageFallSafe();

  // The code with number `id`; empty for any number outside 0 to 19.
  static QString getLanguageAbbrByID(int id);

  // The 20 codes in the order of their numbers.
  static QStringList getSupportedLanguages();

  ParvLocale() = delete;
};
