#include <algorithm>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

#include "runtime/Strings.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/SaveFailures.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/PartNames.h"
#include "xlsx/package/WorkbookKind.h"
#include "xlsx/package/XString.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

TEST(PackageTest, TargetsAreResolvedInsideThePackage) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"/xl/workbook.xml", "worksheets/sheet1.xml", "/xl/worksheets/sheet1.xml"},
      {"/xl/worksheets/sheet1.xml", "../drawings/drawing1.xml", "/xl/drawings/drawing1.xml"},
      {"", "xl/workbook.xml", "/xl/workbook.xml"},
      {"/xl/workbook.xml", "/xl/styles.xml", "/xl/styles.xml"},
      {"/xl/a.xml", ".\\b%20c.xml#d", "/xl/b c.xml"},
      {"/xl/a.xml", "x%41%4a", "/xl/xAJ"},
      {"/xl/a.xml", "x%4%G1%1G", "/xl/x%4%G1%1G"},
      {"/xl/a.xml", "../../etc/passwd", ""},
      {"/xl/a.xml", "../../xl/b.xml", ""}};
  for (const auto& [source, target, resolved] : cases)
    EXPECT_EQ(ResolveTarget(source, target), resolved) << target;
  EXPECT_EQ(RelativeTarget("/xl/worksheets/sheet1.xml", "/xl/drawings/d.xml"), "../drawings/d.xml");
  EXPECT_EQ(RelativeTarget("", "/xl/workbook.xml"), "xl/workbook.xml");
  EXPECT_EQ(RelativeTarget("/a/b/c.xml", "/x/y.xml"), "../../x/y.xml");
  EXPECT_EQ(RelativeTarget("/a b/c.xml", "/a b/ä%.xml"), "%C3%A4%25.xml");
}

class PackageFileTest : public ::testing::Test {
 protected:
  S Book() {
    test::PlainBook book;
    book.sheets = {test::SalesSheet()};
    S noise;
    for (unsigned i = 0, x = 1; i < 10000; ++i)
      noise += static_cast<char>((x = x * 1664525 + 1013904223) >> 24);
    book.extraParts = {{"xl/media/noise.bin", noise}};
    book.Write(folder_ / "book.xlsx");
    return folder_ / "book.xlsx";
  }
  test::TempFolder folder_;
};

TEST_F(PackageFileTest, UntouchedPartsKeepTheirBytesOrderAndNames) {
  Package package = Package::Open(Book());
  const auto before = package.Parts();
  package.Replace("/XL/Workbook.xml", "<workbook/>");  // Names ignore case.
  package.Add("/xl/new.xml", "application/x-new", "<new/>");
  const S id = package.AddRelationship("/xl/workbook.xml", "http://x/new", "/xl/new.xml");
  test::SaveThroughEachFailure(folder_ / "out.xlsx", [&](const S& path) { package.Save(path); });

  const Package again = Package::Open(folder_ / "out.xlsx");
  const Package original = Package::Open(folder_ / "book.xlsx");
  auto after = again.Parts();
  EXPECT_EQ(after.back(), "/xl/new.xml");
  after.pop_back();
  EXPECT_EQ(after, before);
  for (const S& part : before) {
    const bool touched =
        part == "/xl/workbook.xml" || part == "/[Content_Types].xml" || part == "/xl/_rels/workbook.xml.rels";
    EXPECT_EQ(again.Read(part) == original.Read(part), !touched) << part;
  }
  EXPECT_EQ(again.ContentType("/xl/new.xml"), "application/x-new");
  EXPECT_EQ(again.FindRelationship("/xl/workbook.xml", id)->target, "/xl/new.xml");
  EXPECT_EQ(again.FindRelationship("/xl/workbook.xml", id)->type, "new");
}

TEST_F(PackageFileTest, AFileThatAnotherProgramHasChangedIsNotReplaced) {
  const S path = Book();
  auto first = Package::Open(path), second = Package::Open(path);
  second.Replace("/xl/workbook.xml", "<second/>");
  for (const char* const text : {"<first/>", "<once more/>"}) {
    first.Replace("/xl/workbook.xml", text);
    first.Save(path);
  }
  const S before = test::BytesOf(path);
  EXPECT_EQ(test::ErrorTextOf<PackageError>([&] { second.Save(path); }),
            "another program has changed it since it was read");
  EXPECT_EQ(test::BytesOf(path), before);
  const S other = folder_ / "other.xlsx";
  for (const char* const text : {"<second/>", "<second once more/>"}) {
    second.Replace("/xl/workbook.xml", text);
    second.Save(other);
    EXPECT_EQ(Package::Open(other).Read("/xl/workbook.xml"), text);
  }
  first.Save(other);
  const S replaced = test::BytesOf(other);
  EXPECT_EQ(test::ErrorTextOf<PackageError>([&] { second.Save(other); }),
            "another program has changed it since it was saved");
  EXPECT_EQ(test::BytesOf(other), replaced);
  std::filesystem::remove(other);
  second.Save(other);
  EXPECT_EQ(Package::Open(other).Read("/xl/workbook.xml"), "<second once more/>");
}

TEST_F(PackageFileTest, APackageSavedOverItsOwnFileUsesTheNewFile) {
  const S path = Book();
  Package package = Package::Open(path);
  const S noise = package.Read("/xl/media/noise.bin");
  package.Add("/xl/new.xml", "application/x-new", "<new/>");
  // An early part is removed, so that the others have different positions in the new file.
  package.RemoveRelationship("/xl/workbook.xml",
                             package.FindRelationshipOfType("/xl/workbook.xml", "worksheet")->id);
  const auto save = [&](const S& to) { package.Save(to); };
  test::SaveThroughFailures(path, save);
  EXPECT_EQ(package.Read("/xl/media/noise.bin"), noise);
  package.Replace("/xl/new.xml", "<newer/>");
  test::SaveThroughFailures(path, save);

  const Package again = Package::Open(path);
  EXPECT_EQ(again.Parts(), package.Parts());
  for (const S& part : again.Parts()) EXPECT_EQ(again.Read(part), package.Read(part)) << part;
  EXPECT_EQ(again.Read("/xl/new.xml"), "<newer/>");
}

/// Returns a package with relationships such as "a>b". The id is the same text, and the package itself is "".
Package Linked(const std::vector<S>& links) {
  Package package;
  for (const S& link : links) {
    for (const S& end : {link.substr(0, link.find('>')), link.substr(link.find('>') + 1)}) {
      if (!end.empty()) package.Add("/" + end, "application/" + end, "<x/>");
    }
  }
  for (const S& link : links) {
    const auto at = link.find('>');
    package.AddRelationship(at == 0 ? "" : "/" + link.substr(0, at), "http://x/x", "/" + link.substr(at + 1));
  }
  return package;
}

TEST_F(PackageFileTest, UnreferencedPartsAreRemovedWithTheirRelationship) {
  const struct {
    std::vector<S> links;
    S source, id;
    std::vector<S> gone;
  } cases[] = {{{">d", "d>c", "c>s", "c>b"}, "/d", "rId1", {"/b", "/c", "/s"}},
               {{">d", "d>c", "d>e", "c>s", "e>s"}, "/d", "rId1", {"/c"}},  // s is shared.
               {{">d", "d>c", "d>e", "c>s", "c>t", "e>s", "s>t"},
                "/d",
                "rId1",
                {"/c"}},                                         // The parts that s uses are also shared.
               {{">d", "d>c", "d>c", "c>s"}, "/d", "rId1", {}},  // c has two references.
               {{">d", "d>c", "c>s", "s>c"}, "/d", "rId1", {"/c", "/s"}},  // The parts refer to each other.
               {{">d", "d>c", "c>d", "c>s"}, "/d", "rId1", {"/c", "/s"}},  // c refers back to d.
               {{">d", ">d", "d>c"}, "", "rId1", {}},
               {{">d", "d>c"}, "", "rId1", {"/c", "/d"}},
               {{">d", "d>c"}, "/d", "rId9", {}},
               {{">d", "d>c", "c>_rels/.rels", "c>[Content_Types].xml"}, "/d", "rId1", {"/c"}}};
  for (const auto& c : cases) {
    Package package = Linked(c.links);
    std::vector<S> left;
    for (const S& part : package.Parts()) {
      const S owner = runtime::Replace(runtime::Replace(part, "/_rels/", "/"), ".rels", "");
      const bool goes = std::find(c.gone.begin(), c.gone.end(), owner) != c.gone.end();
      if (!goes) left.push_back(part);
    }
    const auto links = package.Relationships(c.source).size();
    EXPECT_EQ(package.RemoveRelationship(c.source, c.id), c.gone);
    EXPECT_EQ(package.Relationships(c.source).size(), c.id == "rId9" ? links : links - 1);
    if (package.Relationships(c.source).empty()) {  // An empty list of relationships is removed.
      std::erase(left, c.source.empty() ? "/_rels/.rels" : "/_rels/" + c.source.substr(1) + ".rels");
    }
    EXPECT_EQ(package.Parts(), left);
    for (const S& gone : c.gone) {
      EXPECT_EQ(package.ContentType(gone), "");
      package.Add(gone, "application/new", "<x/>");
      EXPECT_TRUE(package.Relationships(gone).empty());
    }
  }
}

TEST_F(PackageFileTest, NoPartIsRemovedIfRelationshipsCantBeRead) {
  Package package = Linked({">d", "d>c", "d>e", "e>s"});
  package.Replace("/_rels/e.rels", "<Relationships");
  EXPECT_EQ(package.RemoveRelationship("/d", "rId1"), std::vector<S>{});
  EXPECT_TRUE(package.Has("/c"));
  EXPECT_FALSE(package.FindRelationship("/d", "rId1"));
}

TEST_F(PackageFileTest, ForeignEntriesKeepTheirCompressionMethod) {
  {
    ArchiveWriter writer(folder_ / "odd.xlsx");
    writer.Add("[Content_Types].xml", "<Types/>");
    writer.Add("foreign.bin", "declared as LZMA", false);
    writer.Finish();
  }
  S bytes = test::BytesOf(folder_ / "odd.xlsx");
  // The compression method is 22 bytes before a local name, and 36 bytes before a name in the directory.
  const auto local = bytes.find("foreign.bin"), central = bytes.rfind("foreign.bin");
  bytes[local - 22] = bytes[central - 36] = 14;
  std::ofstream(folder_ / "odd.xlsx", std::ios::binary) << bytes;

  Package package = Package::Open(folder_ / "odd.xlsx");
  EXPECT_THROW(package.Read("/foreign.bin"), PackageError);
  package.Add("/new.xml", "application/xml", "<new/>");
  test::SaveThroughFailures(folder_ / "out.xlsx", [&](const S& path) { package.Save(path); });
  const S after = test::BytesOf(folder_ / "out.xlsx");
  EXPECT_NE(after.find("declared as LZMA"), S::npos);
  EXPECT_EQ(after[after.find("foreign.bin") - 22], 14);
  EXPECT_EQ(Archive(folder_ / "out.xlsx").Entries()[1].method, 14);
}

TEST_F(PackageFileTest, EntriesThatCantBeReadSayWhy) {
  struct {
    std::size_t local, central;  // Bytes before the name, locally and in the directory.
    char value;
    S reason;
  } const kCases[] = {{22, 36, 14, "it is compressed by an unsupported method"},
                      {24, 38, 1, "it is encrypted"},
                      {16, 30, 77, "its checksum is wrong"},
                      {8, 22, 127, "its size isn't the one in the archive's directory"}};
  for (const auto& c : kCases) {
    ArchiveWriter writer(folder_ / "odd.xlsx");
    writer.Add("[Content_Types].xml", "<Types/>");
    const S some(300, 'x');
    writer.Add("some.bin", some);
    writer.Finish();
    S bytes = test::BytesOf(folder_ / "odd.xlsx");
    bytes[bytes.find("some.bin") - c.local] = bytes[bytes.rfind("some.bin") - c.central] = c.value;
    std::ofstream(folder_ / "odd.xlsx", std::ios::binary) << bytes;
    EXPECT_EQ(test::ErrorTextOf<PackageError>([&] { Package::Open(folder_ / "odd.xlsx").Read("/some.bin"); }),
              "its part /some.bin can't be read: " + c.reason);
  }
}

TEST_F(PackageFileTest, AFileThatWasCutWhileItWasOpenIsDamaged) {
  const S path = folder_ / "book.xlsx";
  {
    ArchiveWriter writer(path);
    writer.Add("[Content_Types].xml", "<Types/>");
    const S first(1 << 20, 'f'), second(1 << 20, 's');
    writer.Add("first.bin", first, false);
    writer.Add("second.bin", second, false);
    writer.Finish();
  }
  const Package package = Package::Open(path);
  std::filesystem::resize_file(path, 100'000);
  EXPECT_THROW(package.Read("/first.bin"), PackageError);
  EXPECT_THROW(package.Read("/second.bin"), PackageError);
}

TEST_F(PackageFileTest, CommentsOfArchivesAreKept) {
  for (const S& comment : {S(), S("x"), S("two lines\nof it")}) {
    {
      ArchiveWriter writer(folder_ / "book.xlsx");
      writer.Add("[Content_Types].xml", "<Types/>");
      writer.Finish();
    }
    S bytes = test::BytesOf(folder_ / "book.xlsx");
    bytes[bytes.size() - 2] = static_cast<char>(comment.size());
    bytes += comment;
    std::ofstream(folder_ / "book.xlsx", std::ios::binary) << bytes;
    Package::Open(folder_ / "book.xlsx").Save(folder_ / "out.xlsx");
    EXPECT_EQ(test::BytesOf(folder_ / "out.xlsx"), bytes);
  }
}

TEST_F(PackageFileTest, RelationshipsGetTheFirstFreeNumber) {
  Package package;
  for (const char* part : {"/a", "/b"}) package.Add(part, "application/x", "<x/>");
  const auto add = [&] { return package.AddRelationship("/a", "http://x/x", "/b"); };
  EXPECT_EQ(add(), "rId1");
  EXPECT_EQ(add(), "rId2");
  EXPECT_EQ(add(), "rId3");
  package.RemoveRelationship("/a", "rId2");
  EXPECT_EQ(add(), "rId2");
  package.Replace("/_rels/a.rels", "<Relationships><Relationship Id=\"RID1\"/></Relationships>");
  EXPECT_EQ(add(), "rId2");
}

TEST(PackageTest, ContentTypesOfMacros) {
  for (const char* type : {"application/vnd.ms-office.vbaProject", "application/vnd.ms-excel.macrosheet+xml",
                           "application/vnd.ms-excel.intlmacrosheet+xml"})
    EXPECT_TRUE(HoldsMacros(type)) << type;
  for (const char* type : {"", "application/vnd.ms-excel.sheet.macroEnabled.main+xml"})
    EXPECT_FALSE(HoldsMacros(type)) << type;
}

TEST_F(PackageFileTest, TheFileIsReplacedCompletelyOrNotAtAll) {
  const S path = Book();
  chmod(path.c_str(), 0640);
  symlink(path.c_str(), (folder_ / "link.xlsx").c_str());
  Package::Open(path).Save(folder_ / "link.xlsx");
  struct stat status {};
  ASSERT_EQ(lstat((folder_ / "link.xlsx").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode)) << "a link stays a link";
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
  const mode_t mask = umask(027);
  Package::Open(path).Save(folder_ / "new.xlsx");
  EXPECT_EQ(umask(mask), mode_t{027}) << "the file mask doesn't change";
  ASSERT_EQ(stat((folder_ / "new.xlsx").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
  std::filesystem::remove(folder_ / "new.xlsx");
  symlink("linked.xlsx", (folder_ / "first.xlsx").c_str());
  symlink("first.xlsx", (folder_ / "second.xlsx").c_str());
  Package::Open(path).Save(folder_ / "second.xlsx");
  EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "first.xlsx"));
  EXPECT_TRUE(std::filesystem::remove(folder_ / "linked.xlsx")) << "a link can lead to a new file";

  Package package = Package::Open(path);
  mkfifo((folder_ / "pipe").c_str(), 0600);
  symlink("circle", (folder_ / "circle").c_str());
  for (const auto& [bad, reason] : {std::pair{folder_ / "no/such/folder/x.xlsx", "No such file or directory"},
                                    {folder_.Path().string(), "it is not a regular file"},
                                    {folder_ / "circle", "Too many levels of symbolic links"},
                                    {folder_ / "pipe", "it is not a regular file"}}) {
    EXPECT_EQ(test::ErrorTextOf<PackageError>([&, to = bad] { package.Save(to); }),
              "can't write " + bad + ": " + reason);
  }
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
    files += entry.symlink_status().type() == std::filesystem::file_type::regular;
  EXPECT_EQ(files, 1u) << "no other file remains";
}

TEST_F(PackageFileTest, DamageIsReportedWithItsPart) {
  const S path = Book();
  S bytes = test::BytesOf(path);
  const auto write = [&](const S& changed) {
    std::ofstream(folder_ / "bad.xlsx", std::ios::binary) << changed;
    return folder_ / "bad.xlsx";
  };
  EXPECT_THROW(Package::Open(write("")), PackageError);
  EXPECT_THROW(Package::Open(write("not a zip file")), PackageError);
  EXPECT_THROW(Package::Open(write(bytes.substr(0, bytes.size() / 2))), PackageError);
  // Changing one byte of a part's data damages only this part.
  S flipped = bytes;
  const auto data = flipped.find("xl/media/noise.bin") + 18 + 20;
  flipped[data] = static_cast<char>(flipped[data] ^ 0x55);
  const Package package = Package::Open(write(flipped));
  EXPECT_NO_THROW(package.Read("/xl/workbook.xml"));
  const S error = test::ErrorTextOf<PackageError>([&] { package.Read("/xl/media/noise.bin"); });
  EXPECT_TRUE(error.starts_with("its part /xl/media/noise.bin can't be read: ")) << error;
  EXPECT_THROW(package.Read("/xl/none.xml"), PackageError);
}

TEST_F(PackageFileTest, BombsAreRefusedBeforeTheyUseMemory) {
  ArchiveWriter writer(folder_ / "bomb.xlsx");
  const S blanks(64 << 20, ' ');
  writer.Add("[Content_Types].xml", "<Types/>");
  writer.Add("xl/blanks.xml", blanks);
  writer.Finish();
  const Package package = Package::Open(folder_ / "bomb.xlsx");
  EXPECT_THROW(package.Read("/xl/blanks.xml"), PackageError);
  EXPECT_THROW(package.Stream("/xl/blanks.xml"), PackageError);
}

TEST_F(PackageFileTest, TheReasonForRefusingALargePartIsTrue) {
  struct {
    std::size_t stored, declared;  // The bytes in the file and in its directory.
    S refusal;
  } const kCases[] = {
      {1'000'000, 301'000'000, "it inflates to 301000000 bytes, more than any valid workbook needs"},
      {2'000'000, 536'870'913,
       "it inflates to 536870913 bytes, more than the 536870912 bytes that Plotsmith can hold in memory"}};
  for (const auto& c : kCases) {
    ArchiveWriter writer(folder_ / "large.xlsx");
    writer.Add("[Content_Types].xml", "<Types/>");
    const S blanks(c.stored, ' ');
    writer.Add("xl/large.xml", blanks, false);
    writer.Finish();
    S bytes = test::BytesOf(folder_ / "large.xlsx");
    const auto local = bytes.find("xl/large.xml"), central = bytes.rfind("xl/large.xml");
    for (std::size_t i = 0; i < 4; ++i) {
      bytes[local - 8 + i] = bytes[central - 22 + i] = static_cast<char>(c.declared >> (8 * i));
    }
    std::ofstream(folder_ / "large.xlsx", std::ios::binary) << bytes;
    const Package package = Package::Open(folder_ / "large.xlsx");
    EXPECT_EQ(test::ErrorTextOf<PackageError>([&] { package.Read("/xl/large.xml"); }),
              "its part /xl/large.xml can't be read: " + c.refusal);
  }
}

TEST(XmlTest, UnchangedPartsAreWrittenUnchanged) {
  for (const S& text : {S("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?><a x=\"1 &lt; &#10; "
                          "&apos;\">&#13;\r\n &amp; <b/>\t<!-- c --><?p q?><![CDATA[<]]> </a>"),
                        S("<a><b xml:space=\"preserve\">  </b></a>")}) {
    pugi::xml_document document;
    xml::Parse(document, text);
    EXPECT_EQ(xml::Serialize(document), text);
  }
  pugi::xml_document document;
  xml::Parse(document, "<a x='say \"hi\"'/>");
  EXPECT_EQ(xml::Serialize(document), "<a x=\"say &quot;hi&quot;\"/>");
  EXPECT_EQ(xml::Attribute(xml::Root(document), "x"), "say \"hi\"");
  for (const char* bad : {"", "<a>", "text", "<a><b></a>"})
    EXPECT_THROW(xml::Parse(document, bad), PackageError) << bad;
}

TEST(XmlTest, ForbiddenContentsAreRefused) {
  const auto nested = [](int depth) {
    S open, close;
    for (int i = 0; i < depth; ++i) open += "<a>", close += "</a>";
    return open + close;
  };
  const auto wide = [](std::size_t attributes) {
    S text = "<a";
    for (std::size_t i = 0; i < attributes; ++i) text += " a='1'";
    return text + "/>";
  };
  const auto marks = [](std::size_t count) { return "<a>" + S(count - 2, '=') + "</a>"; };
  const S deep = nested(500'000);
  const char* const isDeep = "its XML is nested too deeply";
  const char* const isWide = "an element of it has more attributes than Plotsmith supports";
  const char* const isLarge = "it has more elements than Plotsmith supports";
  // A case without a message is read.
  const std::pair<S, const char*> cases[] = {
      {nested(limits::kXmlDepth), ""},
      {nested(limits::kXmlDepth + 1), isDeep},
      {deep, isDeep},
      {"<!DOCTYPE a [<!-- ' -->]>" + deep, isDeep},
      {"<?xml version='1.0?><!--'>" + deep + "<!-- -->", "its XML is damaged"},
      {wide(limits::kXmlAttributes), ""},
      {wide(limits::kXmlAttributes + 1), isWide},
      {marks(limits::kXmlMarks), ""},
      {marks(limits::kXmlMarks + 1), isLarge},
      {S(limits::kXmlMarks + 1, '<'), isLarge},
      {"<!DOCTYPE a><a/>", "it declares a document type, which isn't allowed in a workbook"},
      {"<a>\xE4</a>", "its text isn't in the encoding that it declares"}};
  for (const auto& [text, reason] : cases) {
    const auto parse = [&bytes = text] {
      pugi::xml_document document;
      xml::Parse(document, bytes);
    };
    EXPECT_EQ(test::ErrorTextOf<PackageError>(parse), reason) << text.substr(0, 40);
  }
}

TEST(XmlTest, AnyEncodingIsConvertedToUtf8) {
  const auto declared = [](const S& encoding, const S& text) {
    return "<?xml version='1.0' encoding='" + encoding + "' standalone='yes'?><a>" + text + "</a>";
  };
  const auto wide = [](const S& text, bool big) {
    S bytes;
    for (const char16_t unit : runtime::ToUtf16(text)) {
      const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
      bytes += big ? S{high, low} : S{low, high};
    }
    return bytes;
  };
  const std::pair<S, S> cases[] = {
      {wide("\uFEFF" + declared("UTF-16", "ä€"), false), declared("UTF-8", "ä€")},
      {wide("\uFEFF" + declared("utf-16", "ä€"), true), declared("UTF-8", "ä€")},
      {wide(declared("UTF-16LE", "ä"), false), declared("UTF-8", "ä")},
      {wide("\uFEFF<a/>", false), "<a/>"},
      {"\uFEFF" + declared("UTF-8", "ä"), declared("UTF-8", "ä")},
      {declared("iso-8859-1", "\xE4\xFC"), declared("UTF-8", "äü")},
      {declared("Windows-1252", "\x80\x99\xE4"), declared("UTF-8", "€™ä")},
      {declared("utf-8", "ä"), declared("utf-8", "ä")}};
  for (const auto& [bytes, text] : cases) {
    EXPECT_EQ(xml::ToUtf8(bytes), text);
    EXPECT_EQ(xml::NeedsConversion(bytes), bytes != text);
  }
}

TEST(XmlTest, ChildrenAreFoundByTheirLocalNames) {
  pugi::xml_document document;
  xml::Parse(document, "<r><ab n='1'/><!--b--><x:a n='2'/><x:b n='3'/><b n='4'/><b:c n='5'/></r>");
  const std::pair<const char*, S> cases[] = {{"a", "2"}, {"b", "34"}, {"ab", "1"}, {"c", "5"}, {"x", ""}};
  for (const auto& [name, numbers] : cases) {
    S found;
    for (const auto& child : xml::Children(xml::Root(document), name)) found += xml::Attribute(child, "n");
    EXPECT_EQ(found, numbers) << name;
  }
}

TEST(XmlTest, ValuesAreEncodedAndDecoded) {
  const S value = "a<b>&\"c'\r\n\td\x01";
  EXPECT_EQ(xml::Decode(xml::EncodeText(value)), "a<b>&\"c'\r\n\td")
      << "characters that XML can't contain are removed";
  EXPECT_EQ(xml::Decode(xml::EncodeAttribute(value)), "a<b>&\"c'\r\n\td");
  EXPECT_EQ(xml::EncodeText(value), "a&lt;b&gt;&amp;\"c'&#13;\n\td");
  EXPECT_EQ(xml::EncodeAttribute(value), "a&lt;b&gt;&amp;&quot;c'&#13;&#10;&#9;d");
  EXPECT_EQ(xml::Decode("&#x20AC;&#8364;&lt;&unknown;&;&#xFFFFFFF;&"), "€€<&unknown;&;&#xFFFFFFF;&");
  EXPECT_EQ(xml::Decode("&#x000000041;&#x0000000041;"), "A&#x0000000041;") << "at most 13 characters";
  for (const char* raw : {"&#1;", "&#xD83D;", "&#xFFFE;", "&#x110000;"}) EXPECT_EQ(xml::Decode(raw), raw);
  // Characters that aren't allowed in a file stay in the tree, where halves of a surrogate pair can be
  // joined.
  pugi::xml_document document;
  xml::Parse(document, "<a/>");
  xml::SetAttribute(xml::Root(document), "b", "\xED\xA0\xBD|");
  xml::SetText(xml::Root(document), "\xEF\xBF\xBF|ä");
  EXPECT_EQ(xml::Attribute(xml::Root(document), "b"), "\xED\xA0\xBD|");
  EXPECT_EQ(xml::Serialize(document), "<a b=\"|\">|ä</a>");
  // A cell's text is preserved completely, even with half of a surrogate pair or a noncharacter.
  EXPECT_EQ(EncodeXString("\xED\xA0\xBD \xEF\xBF\xBE"), "_xD83D_ _xFFFE_");
  for (const S& text : {S("x\r\n\x01_x0041_"), S("\xED\xA0\xBD \xEF\xBF\xBE"), S("ä😀")}) {
    EXPECT_EQ(DecodeXString(xml::Decode(EncodeXString(text))), text);
  }
}

}  // namespace
}  // namespace plotsmith::xlsx
