#include "launcher/texts/strtab.h"

#include <QCoreApplication>

namespace StrTable {
namespace {

struct Row {
  const char* key;
  const char* text;
};

constexpr Row kRows[] = {
#define STR_ROW(key, text) {#key, text},
#include "launcher/texts/strtab.def"
#undef STR_ROW
};
static_assert(sizeof kRows / sizeof *kRows == NUM_STRING_IDS, "a row for each id");

}  // namespace

const char* stab[NUM_STRING_IDS];
const char* ktab[NUM_STRING_IDS];

void InitStrTable() {
  for (unsigned id = 0; id < NUM_STRING_IDS; ++id) {
    stab[id] = kRows[id].text;
    ktab[id] = kRows[id].key;
  }
}

QString LoadStr(int id) {
  QString text = QCoreApplication::translate("global", stab[id]);
  text.replace(QLatin1String("\\n"), QLatin1String("\n"));
  text.replace(QLatin1String("\\t"), QLatin1String("\t"));
  return text;
}

int LookupStrID(QString strKey) {
  const QByteArray key = strKey.toLocal8Bit();
  for (unsigned id = 0; id < NUM_STRING_IDS; ++id) {
    if (qstricmp(key.constData(), ktab[id]) == 0) return static_cast<int>(id);
  }
  return -1;
}

}  // namespace StrTable
