#include <QtTest>

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <sstream>
#include <type_traits>
#include <utility>

#include "ustring/ustring.h"

using Bytes = QByteArray;
using Change = std::function<void(ustring&)>;
using U = ustring;

Q_DECLARE_METATYPE(Change)

namespace {

Bytes bytes(const U& s) { return Bytes(s.c_str_utf8(), int(s.length())); }
QString view(const U& s) { return QString::fromUtf16(s.c_str_utf16()); }

// What the change writes to standard error, or the text of what it throws.
Bytes complaint(const Change& change, U& s) {
  char* text = nullptr;
  size_t size = 0;
  FILE* const before = std::exchange(stderr, open_memstream(&text, &size));
  try {
    change(s);
  } catch (const std::exception& e) {
    fputs(e.what(), stderr);
  }
  fclose(std::exchange(stderr, before));
  const std::unique_ptr<char, decltype(&free)> owned(text, free);
  return Bytes(text, int(size));
}

// A number is no text, and a 16-bit unit no char.
static_assert(!std::is_constructible_v<U, int> && !std::is_constructible_v<U, uchar16_t>);
static_assert(!std::is_assignable_v<U&, int> && !std::is_assignable_v<U&, char32_t>);

// Searches as a standard string does, but finds nothing, not even "", behind the last byte.
template <typename Find>
void sameAsStandard(bool forward, Find find) {
  for (const std::string text : {"", "a", "aab", "abcabc"}) {
    for (const std::string needle : {"", "a", "c", "x", "ab", "bc", "cb", "ca", "abcabca"}) {
      for (const size_t pos : {size_t(0), size_t(1), size_t(2), size_t(4), size_t(6), U::npos}) {
        const bool inside = forward ? pos < text.size() : !text.empty();
        const size_t from = pos < text.size() ? pos : text.size() - 1;
        const size_t there = inside ? find(text, needle, from) : U::npos;
        const U s(text);
        QCOMPARE(find(s, needle.c_str(), pos), there);
        QCOMPARE(find(s, needle + '\0', pos), there);  // which ends it
        QCOMPARE(find(s, U(needle + '\0'), pos), there);
        if (needle.size() < 2) QCOMPARE(find(s, needle[0], pos), there);
      }
    }
  }
}

}  // namespace

// Always moves, and leaves nothing to be read where the text was. The sanitizers have one of their
// own.
#if !defined(__SANITIZE_THREAD__) && !defined(__SANITIZE_ADDRESS__)
extern "C" void* realloc(void* old, size_t size) noexcept {
  void* const moved = malloc(size);
  if (!moved || !old) return moved;
  const size_t held = malloc_usable_size(old);
  memcpy(moved, old, std::min(held, size));
  explicit_bzero(old, held);
  free(old);
  return moved;
}
#endif

class TestUstring : public QObject {
  Q_OBJECT

 private slots:
  void change_data() {
    QTest::addColumn<Bytes>("before");
    QTest::addColumn<Bytes>("after");
    QTest::addColumn<Bytes>("complaint");
    QTest::addColumn<Change>("change");
    const auto row = [](const char* tag, const Bytes& before, const Bytes& after,
                        const Bytes& complaint, const Change& change) {
      QTest::newRow(tag) << before << after << complaint << change;
    };
    const char* const none = nullptr;
    const uchar16_t* const none16 = nullptr;
    row("append/chars", "abc", Bytes("abcdegef\0h", 10), "", [=](U& s) {
      s.append("def", 2).append("g\0h", 3).append(none).append(none, 3);
      s.append(std::string("defg"), 1, 2) += std::string("\0h", 2);
    });
    row("append/units", "a", "aä😀deg", "",
        [=](U& s) { s.append(u"ä😀").append(u"def", 2).append(u"\0g", 2).append(none16) += 'g'; });
    row("append/itself", "abcdefgh", "abcdefghabcdefgh", "", [](U& s) { s.append(s.c_str()); });
    row("append/own view", "abcdefg", "abcdefgg", "", [](U& s) { s.append(s.c_str_utf16() + 6); });
    row("assign", "abc", "dexxäööüzef", "", [](U& s) {
      U all;
      all.append(s.assign("def", 2)).append(s.assign('x', 2)).append(s.assign(u"äb", 1));
      all.append(s.assign(u'ö', 2)).append(s = u'ü').append(s = 'z');
      s = all.append(s.assign(std::string("defg"), 1, 2));
    });
    row("assign/own part", "abcdefghijkl", "cd", "", [](U& s) { s.assign(s, 2, 2); });
    row("assign/own start", "abcdefghijkl", "abcd", "", [](U& s) { s.assign(s.c_str(), 4); });
    row("assign/own view", "abcdefghijkl", "l", "", [](U& s) { s = s.c_str_utf16() + 11; });
    row("substr/at the end", "abc", "", "", [](U& s) { s = s.substr(3, 1); });
    row("sum", "a", "abcdäö", "", [](U& s) { s = s + U("b") + "c" + 'd' + u"ä" + u'ö'; });
    row("streams", " ä\tb", "ä", "", [](U& s) { (std::stringstream() << s) >> s; });
    row("trim/left", " \t\r\nabc ", "abc ", "", [](U& s) { s.ltrim(); });
    row("trim/right", " abc \n", " abc", "", [](U& s) { s.rtrim(); });
    row("trim/both", "xyabyx", "ab", "", [](U& s) { (s.trim(""), s.trim(U("xy"))); });
    row("trim/nothing left", "xyx", "", "", [](U& s) { s.trim("xy"); });
    row("trim/own data", "abcdba", "cd", "", [](U& s) { s.trim(s.c_str() + 4); });

    const char* const toUtf8 = "Warning: u_strToUTF8: error code 10 at line 867\n";
    const char* const fromUtf8 = "Warning: u_strFromUTF8: error code 10 at line 900\n";
    row("lone surrogate", "abc", "", toUtf8, [](U& s) { s.append(uchar16_t(0xdc00), 2); });
    row("not UTF-8/view", "a\xff", "a\xff", fromUtf8, [](U& s) { QVERIFY(view(s).isEmpty()); });
    row("not UTF-8/append", "a\xff", "a\xff", fromUtf8, [](U& s) { s.append(u"b"); });
    row("not UTF-8/normalize", "a\xff", "", fromUtf8, [](U& s) { s = s.normalize(U::NFC); });
    row("NFC", Bytes("a\u0308").repeated(999), Bytes("ä").repeated(999), "",
        [](U& s) { s = U::is_valid(s) ? s.normalize(U::NFC) : "not valid"; });
    row("NFD", "xä", "xa\u0308", "", [](U& s) { s = U::normalize(s, U::NFD); });

    row("throws/chars", "abc", "abc", "std::bad_alloc", [](U& s) { s.append('x', U::npos - 2); });
    row("throws/units", "abc", "abc", "std::bad_alloc", [](U& s) { s.append(u'x', U::npos / 2); });
    row("throws/assign itself", "abc", "abc", "substr", [](U& s) { s.assign(s.substr(3), 1); });
  }
  void change() {
    QFETCH(Bytes, before);
    QFETCH(Change, change);
    for (const bool viewBuilt : {false, true}) {
      U s(before.toStdString());
      if (viewBuilt && U::is_valid(s)) QCOMPARE(view(s), QString(before));
      QTEST(complaint(change, s), "complaint");
      if (QTest::currentTestFailed()) return;  // the change itself checks, too
      QTEST(bytes(s), "after");
      QCOMPARE(s.c_str()[s.size()], '\0');
      if (U::is_valid(s)) QCOMPARE(view(s), QString(s.c_str()));
    }
  }

  void search() {
#define SEARCH(forward, name) \
  sameAsStandard(forward, [](const auto& s, auto... a) { return s.name(a...); })
    SEARCH(true, find);
    SEARCH(false, rfind);
    SEARCH(true, find_first_of);
    SEARCH(true, find_first_not_of);
    SEARCH(false, find_last_of);
    SEARCH(false, find_last_not_of);
#undef SEARCH
  }

  void compare() {
    const std::tuple<std::string, std::string, int, int> rows[] = {
        {"abc", "abc", 0, 0},    {"ABC", "abd", -32, -1},   {"aBZ", "Abz", 32, 0},
        {"@[", "`{", -32, -32},  {"ab", "abc", -'c', -'c'}, {"Ä", "ä", -32, -32},
        {"\xff", "a", 158, 158}, {{"ab\0", 3}, "ab", 1, 1},
    };
    for (const auto& [a, b, plain, caseless] : rows) {
      const U left(a);
      const U right(b);
      QCOMPARE(left.compare(right), plain);
      QCOMPARE(right.compare(left), -plain);
      QCOMPARE(U::compare(left, right, true), caseless);
      for (size_t n = 0; n <= 3; ++n)
        QCOMPARE(left.compare(right, n), left.substr(0, n).compare(right.substr(0, n)));
      QVERIFY((left == right) == (plain == 0) && (left != right) == (plain != 0));
      QVERIFY((left < right) == (plain < 0) && (left >= right) == (plain >= 0));
      QVERIFY((left > right) == (plain > 0) && (left <= right) == (plain <= 0));
    }
  }

  void movedFromIsEmpty() {
    U from("ä");
    U to(std::move(from));
    U last;
    last = std::move(to);
    for (U* const s : {&from, &to}) {
      QVERIFY(view(*s).isEmpty() && (*s + *s).empty());
      s->append(*s).append(u"b");
      QCOMPARE(bytes(*s), Bytes("b"));
    }
    swap(last, to);
    to.clear();
    QVERIFY(bytes(last) == "b" && to.empty() && std::as_const(to)[0] == '\0');
  }

  void replaceLeavesViewStale() {
    U s("abc");
    QCOMPARE(view(s), QString("abc"));
    s.replace('b', 'x');
    QCOMPARE(view(s), QString("abc"));
    QCOMPARE(view(U(s)), QString("axc"));
    QCOMPARE(bytes(std::move(s) + u"d"), Bytes("axcd"));
  }

  void memory() {
    alignas(U) char place[sizeof(U)];
    U& s = *new (place) U('x');
    s.append(u'€', 100000) = "€";
    QVERIFY(view(s) == "€" && malloc_usable_size(&s[0]) < 300);
    QVERIFY(malloc_usable_size(const_cast<uchar16_t*>(s.c_str_utf16())) < 300);
    s.~U();
    const void* members[6];  // destroyed, it points nowhere
    static_assert(sizeof members == sizeof place);
    memcpy(members, place, sizeof place);
    QVERIFY(!members[0] && !members[3]);  // the text and the view
  }
};

QTEST_APPLESS_MAIN(TestUstring)
#include "tst_ustring.moc"
