#pragma once

#include <QString>

// Every user-visible text, addressed by id or by key, in English; the translator that is
// installed when a text is fetched puts it into the user's language. The rows stand in
// strtab.def.
namespace StrTable {

// The ids, 0 to 349 in table order; each is named like the key of its row.
enum StringID {
#define STR_ROW(key, text) key,
#include "launcher/texts/strtab.def"
#undef STR_ROW
};

constexpr unsigned NUM_STRING_IDS = 350;

extern const char* stab[NUM_STRING_IDS];  // English texts by id, UTF-8
extern const char* ktab[NUM_STRING_IDS];  // keys by id, ASCII

// Fills both tables. Main thread, before any other thread exists; the tables never change
// afterwards, so any thread may read them. Calling it again is harmless.
void InitStrTable();

// The text of row `id` in the user's language, in English where there is no translation,
// with the escapes \n and \t expanded. `id` must be a StringID. Any thread.
QString LoadStr(int id);

// The id of the row with key `strKey`, letter case ignored; -1 for an unknown key.
int LookupStrID(QString strKey);

}  // namespace StrTable
