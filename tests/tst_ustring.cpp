#include "ustring/ustring.h"

#include <cstdio>
#include <exception>
#include <functional>
#include <map>
#include <sstream>

#include <malloc.h>
#include <unistd.h>

#include <QtTest>

using Bytes = QByteArray;
using Change = std::function<void(ustring&)>;

// The four overloads of one search.
struct Search {
    size_t (ustring::*text)(const char*, size_t) const;
    size_t (ustring::*standard)(const std::string&, size_t) const;
    size_t (ustring::*own)(const ustring&, size_t) const;
    size_t (ustring::*single)(char, size_t) const;
};

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Search)

static Bytes bytes(const ustring& s) { return Bytes(s.c_str(), int(s.length())); }
static QString view(const ustring& s) { return QString::fromUtf16(s.c_str_utf16()); }

// What the change writes to standard error, or the text of what it throws.
static Bytes complaint(const Change& change, ustring& s)
{
    std::FILE* const file = std::tmpfile();
    const int saved = dup(STDERR_FILENO);
    dup2(fileno(file), STDERR_FILENO);
    try {
        change(s);
    } catch (const std::exception& e) {
        std::fputs(e.what(), file);
    }
    dup2(saved, STDERR_FILENO);
    close(saved);
    std::rewind(file);
    char text[4096];
    const Bytes written(text, int(std::fread(text, 1, sizeof text, file)));
    std::fclose(file);
    return written;
}

class TestUstring : public QObject {
    Q_OBJECT
private slots:
    void change_data();
    void change();
    void search_data();
    void search();
    void compare_data();
    void compare();
    void movedFromIsEmpty();
    void replaceLeavesViewStale();
    void usedLikeAStandardString();
};

void TestUstring::change_data()
{
    QTest::addColumn<Bytes>("before");
    QTest::addColumn<Bytes>("after");
    QTest::addColumn<Change>("change");
    QTest::addColumn<Bytes>("complaint");
    const auto row = [](const char* tag, const Bytes& before, const Bytes& after, const Change& change,
                        const char* text = "") { QTest::newRow(tag) << before << after << change << Bytes(text); };
    const char* const none = nullptr;
    const uchar16_t* const none16 = nullptr;

    row("append/at most n", "abc", "abcde", [](ustring& s) { s.append("def", 2); });
    row("append/n stops at zero", "abc", "abcd", [](ustring& s) { s.append("d\0f", ustring::npos); });
    row("append/null", "abc", "abc", [=](ustring& s) { s.append(none).append(none, 3).append(none16); });
    row("append/std part", "abc", "abcef", [](ustring& s) { s.append(std::string("defg"), 1, 2); });
    row("append/std keeps zero", "abc", Bytes("abc\0d", 5), [](ustring& s) { s += std::string("\0d", 2); });
    row("append/units", "abc", "abc\xc3\xa4\xf0\x9f\x98\x80", [](ustring& s) { s.append(u"\u00e4\U0001f600"); });
    row("append/n units", "abc", "abcde", [](ustring& s) { s.append(u"def", 2).append(u"\0g", 2); });
    row("append/unit times n", "abc", "abc\xc3\xa4\xc3\xa4", [](ustring& s) { s.append(u'\u00e4', 2); });
    row("append/operators", "", "abcde\xc3\xa4",
        [](ustring& s) { (((s += "a") += std::string("b")) += ustring("c")) += 'd'; (s += u"e") += u'\u00e4'; });
    row("append/itself", "abcdefgh", "abcdefghabcdefgh", [](ustring& s) { s.append(s); });
    row("append/own data", "abcdefgh", "abcdefghabcdefgh", [](ustring& s) { s.append(s.c_str()); });
    row("append/own view", "abcdefgh", "abcdefghgh", [](ustring& s) { s.append(s.c_str_utf16() + 6); });
    row("assign/own part", "abcdefghijkl", "cd", [](ustring& s) { s.assign(s, 2, 2); });
    row("assign/own tail", "abcdefghijkl", "l", [](ustring& s) { s = s.c_str() + 11; });
    row("assign/own view", "abcdefghijkl", "l", [](ustring& s) { s = s.c_str_utf16() + 11; });
    row("assign/unit", "abc", "\xc3\xa4", [](ustring& s) { s = u'\u00e4'; });
    row("substr", "abc", "b", [](ustring& s) { s = s.substr(1, 1); });
    row("substr/at the end", "abc", "", [](ustring& s) { s = s.substr(3, 1); });
    row("ltrim and rtrim", " \t\r\nabc \t\r\n", "abc", [](ustring& s) { s.ltrim(); s.rtrim(); });
    row("ltrim", " abc ", "abc ", [](ustring& s) { s.ltrim(); });
    row("trim", "xyabyx", "ab", [](ustring& s) { s.trim(ustring("xy")); });
    row("trim/nothing left", "xyx", "", [](ustring& s) { s.trim("xy"); });
    row("trim/empty set", " a ", " a ", [=](ustring& s) { s.trim(""); s.ltrim(none); s.rtrim(""); });
    row("trim/own data", "abcdba", "cd", [](ustring& s) { s.trim(s.c_str() + 4); });

    const char* const toUtf8 = "Warning: u_strToUTF8: error code 10 at line 867\n";
    const char* const fromUtf8 = "Warning: u_strFromUTF8: error code 10 at line 900\n";
    row("lone surrogate/assign", "abc", "", [](ustring& s) { s = u"d\xd800"; }, toUtf8);
    row("lone surrogate/append", "abc", "", [](ustring& s) { s.append(uchar16_t(0xdc00), 2); }, toUtf8);
    row("not UTF-8/view", "a\xff", "a\xff", [](ustring& s) { QCOMPARE(view(s), QString()); }, fromUtf8);
    row("not UTF-8/append", "a\xff", "a\xff", [](ustring& s) { s.append(u"b"); }, fromUtf8);
    row("not UTF-8/normalize", "a\xff", "", [](ustring& s) { s = s.normalize(ustring::NFC); }, fromUtf8);
    row("is_valid/0xFF", "a\xff", "a\xff", [](ustring& s) { QVERIFY(!ustring::is_valid(s)); });
    row("is_valid/UTF-8", "\xe2\x82\xac", "\xe2\x82\xac", [](ustring& s) { QVERIFY(ustring::is_valid(s)); });

    const Change nfc = [](ustring& s) { s = s.normalize(ustring::NFC); };
    const Change nfd = [](ustring& s) { s = ustring::normalize(s, ustring::NFD); };
    row("NFC", "xa\xcc\x88", "x\xc3\xa4", nfc);
    row("NFC/long", Bytes("a\xcc\x88").repeated(999), Bytes("\xc3\xa4").repeated(999), nfc);
    row("NFD", "x\xc3\xa4", "xa\xcc\x88", nfd);
    row("NFD/empty", "", "", nfd);

    const char* const memory = "std::bad_alloc";
    row("throws/chars", "abc", "abc", [](ustring& s) { s.append('x', ustring::npos - 2); }, memory);
    row("throws/units", "abc", "abc", [](ustring& s) { s.append(u'x', ustring::npos / 2); }, memory);
    row("throws/substr", "abc", "abc", [](ustring& s) { (void)s.substr(4); }, "substr");
    row("throws/append", "abc", "abc", [](ustring& s) { s.append(ustring("de"), 3); }, "substr");
    row("throws/assign itself", "abc", "abc", [](ustring& s) { s.assign(s, 4); }, "substr");
}

void TestUstring::change()
{
    QFETCH(Bytes, before);
    QFETCH(Change, change);
    for (const bool viewBuilt : {false, true}) {
        ustring s(before.toStdString());
        if (viewBuilt && ustring::is_valid(s))
            QCOMPARE(view(s), QString(before));
        QTEST(complaint(change, s), "complaint");
        QTEST(bytes(s), "after");
        QCOMPARE(s.c_str()[s.size()], '\0');
        if (ustring::is_valid(s))
            QCOMPARE(view(s), QString(s.c_str()));
    }
}

void TestUstring::search_data()
{
    QTest::addColumn<Search>("function");
    QTest::addColumn<Bytes>("text");
    QTest::addColumn<Bytes>("needle");
    QTest::addColumn<quint64>("pos");
    QTest::addColumn<quint64>("expected");
    using U = ustring;
    using Rows = std::initializer_list<std::tuple<const char*, size_t, size_t>>;
    const auto rows = [](const char* tag, const Search& function, const char* text, const Rows& list) {
        for (const auto& [needle, pos, expected] : list)
            QTest::addRow("%s/'%s' in '%s' from %d", tag, needle, text, int(pos))
                << function << Bytes(text) << Bytes(needle) << quint64(pos) << quint64(expected);
        for (const char* const needle : {"", "a"})
            QTest::addRow("%s/'%s' in empty text", tag, needle)
                << function << Bytes() << Bytes(needle) << quint64(0) << quint64(U::npos);
    };
    rows("find", {&U::find, &U::find, &U::find, &U::find}, "abcabc",
         {{"bc", 0, 1}, {"bc", 2, 4}, {"bc", 5, U::npos}, {"c", 5, 5}, {"", 0, 0}, {"", 5, 5}, {"", 6, U::npos}});
    rows("rfind", {&U::rfind, &U::rfind, &U::rfind, &U::rfind}, "abcabc",
         {{"bc", U::npos, 4}, {"bc", 4, 4}, {"bc", 3, 1}, {"bc", 0, U::npos}, {"", 6, 5}, {"", 1, 1}, {"a", 0, 0}});
    rows("find_first_of", {&U::find_first_of, &U::find_first_of, &U::find_first_of, &U::find_first_of}, "abcabc",
         {{"cb", 0, 1}, {"cb", 3, 4}, {"x", 0, U::npos}, {"", 0, U::npos}, {"c", 6, U::npos}});
    rows("find_first_not_of",
         {&U::find_first_not_of, &U::find_first_not_of, &U::find_first_not_of, &U::find_first_not_of}, "aab",
         {{"a", 0, 2}, {"ab", 0, U::npos}, {"", 1, 1}, {"", 3, U::npos}});
    rows("find_last_of", {&U::find_last_of, &U::find_last_of, &U::find_last_of, &U::find_last_of}, "abcabc",
         {{"ab", U::npos, 4}, {"ab", 3, 3}, {"c", 1, U::npos}, {"c", 6, 5}, {"", U::npos, U::npos}});
    rows("find_last_not_of",
         {&U::find_last_not_of, &U::find_last_not_of, &U::find_last_not_of, &U::find_last_not_of}, "abb",
         {{"b", U::npos, 0}, {"ab", 2, U::npos}, {"a", 7, 2}, {"", U::npos, 2}, {"", 1, 1}});
}

void TestUstring::search()
{
    QFETCH(Search, function);
    QFETCH(Bytes, text);
    QFETCH(Bytes, needle);
    QFETCH(quint64, pos);
    const ustring s(text.constData());
    QTEST(quint64((s.*function.text)(needle.constData(), size_t(pos))), "expected");
    QTEST(quint64((s.*function.standard)(needle.toStdString(), size_t(pos))), "expected");
    QTEST(quint64((s.*function.own)(ustring(needle.constData()), size_t(pos))), "expected");
    if (needle.size() <= 1)
        QTEST(quint64((s.*function.single)(needle.constData()[0], size_t(pos))), "expected");
}

void TestUstring::compare_data()
{
    QTest::addColumn<Bytes>("a");
    QTest::addColumn<Bytes>("b");
    QTest::addColumn<int>("plain");
    QTest::addColumn<int>("caseless");
    QTest::addColumn<int>("firstTwo");
    QTest::newRow("equal") << Bytes("abc") << Bytes("abc") << 0 << 0 << 0;
    QTest::newRow("case") << Bytes("ABC") << Bytes("abd") << 'A' - 'a' << 'c' - 'd' << 'A' - 'a';
    QTest::newRow("case only") << Bytes("aBZ") << Bytes("Abz") << 'a' - 'A' << 0 << 'a' - 'A';
    QTest::newRow("beside the letters") << Bytes("@[") << Bytes("`{") << -32 << -32 << -32;
    QTest::newRow("third byte") << Bytes("abx") << Bytes("abz") << -2 << -2 << 0;
    QTest::newRow("prefix") << Bytes("ab") << Bytes("abc") << -'c' << -'c' << 0;
    QTest::newRow("not ASCII") << Bytes("\xc3\x84") << Bytes("\xc3\xa4") << -32 << -32 << -32;
    QTest::newRow("unsigned") << Bytes("\xff") << Bytes("a") << 158 << 158 << 158;
}

void TestUstring::compare()
{
    QFETCH(Bytes, a);
    QFETCH(Bytes, b);
    QFETCH(int, plain);
    const ustring left(a.constData());
    const ustring right(b.constData());
    QCOMPARE(left.compare(right), plain);
    QTEST(ustring::compare(left, right, true), "caseless");
    QTEST(left.compare(right, 2), "firstTwo");
    QCOMPARE(left.compare(right, 0), 0);
    QVERIFY((left == right) == (plain == 0) && (left != right) == (plain != 0));
    QVERIFY((left < right) == (plain < 0) && (left >= right) == (plain >= 0));
    QVERIFY((left > right) == (plain > 0) && (left <= right) == (plain <= 0));
    QCOMPARE(right.compare(left), -plain);
}

void TestUstring::movedFromIsEmpty()
{
    ustring from("\xc3\xa4");
    ustring to(std::move(from));
    ustring last;
    last = std::move(to);
    for (ustring* const s : {&from, &to}) {
        s->clear();
        s->trim();
        QCOMPARE(bytes(*s + *s), Bytes());
        QCOMPARE(view(*s), QString());
        s->append(*s).append(u"b");
        QCOMPARE(bytes(*s), Bytes("b"));
    }
    swap(last, to);
    QCOMPARE(bytes(to), Bytes("\xc3\xa4"));
}

void TestUstring::replaceLeavesViewStale()
{
    ustring s("abc");
    QCOMPARE(view(s), QString("abc"));
    s.replace('b', 'x');
    QCOMPARE(bytes(s), Bytes("axc"));
    QCOMPARE(view(s), QString("abc"));
    QCOMPARE(view(ustring(s)), QString("axc"));
    QCOMPARE(bytes(std::move(s) + u"d"), Bytes("axcd"));
    s += "";
    QCOMPARE(view(s), QString("axc"));
}

// In streams, as a key, in sums of all kinds, through long and short texts.
void TestUstring::usedLikeAStandardString()
{
    std::istringstream in("  one\ttwo ");
    std::ostringstream out;
    for (ustring word; in >> word;)
        out << word << '|';
    QCOMPARE(out.str(), std::string("one|two|"));

    const std::map<ustring, int> keys{{"b", 2}, {"\xc3", 3}, {"a", 1}};
    QCOMPARE(keys.at("b"), 2);
    QCOMPARE(bytes(keys.rbegin()->first), Bytes("\xc3"));

    const ustring a("a");
    QCOMPARE(bytes("<" + a + a + "/" + 'c' + std::string("s") + u"\u00e4" + u'>'), Bytes("<aa/cs\xc3\xa4>"));
    QCOMPARE(bytes(a + u"\u00e4" + (a + '+') + (a + u'-')), Bytes("a\xc3\xa4" "a+a-"));

    ustring s;
    for (int round = 0; round < 2; ++round) {
        s.assign('x', 100000);
        QCOMPARE(view(s), QString(100000, 'x'));
        s = s.c_str() + 99990;
        QCOMPARE(view(s), QString(10, 'x'));
        s.append(u'\u20ac', 100000);
        QCOMPARE(s.length(), size_t(300010));
        s = "short";
        QVERIFY(malloc_usable_size(&s[0]) < 300);
    }
}

QTEST_APPLESS_MAIN(TestUstring)
#include "tst_ustring.moc"
