#include "host/files/MarkupWriter.h"
#include "teskara/markup/XMLDocument.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// What a text of markup is written as; its first element is the one that is written.
std::string Written(const std::string& text)
{
    XMLDocument document;
    EXPECT_TRUE(document.ParseBuffer(text.c_str()));
    return host::MarkupWriter::Write(*document.Root->FirstChild);
}

TEST(MarkupWriter, WhatIsShortStandsOnOneLine)
{
    EXPECT_EQ("<a/>\n", Written("<a></a>"));
    EXPECT_EQ("<a b=\"1\" c=\"2\"><d>3</d><e/></a>\n", Written("<a b='1' c='2'>\n  <d>3</d>\n  <e/>\n</a>"));
}

TEST(MarkupWriter, WhatIsLongIsIndentedWithItsValuesSideBySide)
{
    const std::string label(50, 'x');
    EXPECT_EQ("<a>\n  <X>1</X><Y>2</Y><Text>" + label + "</Text>\n  <Children>\n    <b><Text>" + label
            + "</Text></b>\n    <b><Text>" + label + "</Text></b>\n  </Children>\n</a>\n",
        Written("<a><X>1</X><Y>2</Y><Text>" + label + "</Text><Children><b><Text>" + label + "</Text></b><b><Text>"
            + label + "</Text></b></Children></a>"));
}

TEST(MarkupWriter, ALineEndsWhereTheNextValueHasNoRoom)
{
    const std::string label(30, 'x');
    const std::string value = "<b>" + label + "</b>";
    EXPECT_EQ("<a>\n  " + value + value + "\n  " + value + "\n</a>\n", Written("<a>" + value + value + value + "</a>"));
}

TEST(MarkupWriter, WhatMeansSomethingInMarkupIsEscaped)
{
    EXPECT_EQ("<a b=\"&lt;&quot;&amp;'\">1 &lt; 2 &amp;&amp; 3 &gt; 2</a>\n",
        Written("<a b=\"&lt;&quot;&amp;'\">1 &lt; 2 &amp;&amp; 3 &gt; 2</a>"));
}

TEST(MarkupWriter, WhatIsWrittenReadsAsTheSame)
{
    const std::string text = "<a b=\"&quot;&lt;\"><c>x &amp; y</c><d><e f=\"1\"/></d></a>";
    EXPECT_EQ(Written(text), Written(Written(text)));
}

TEST(MarkupWriter, ATextOfSeveralLinesKeepsItsIndents)
{
    EXPECT_EQ("<OnLoad>\n  if a then\n    b()\n\n  end\n</OnLoad>\n",
        Written("<OnLoad>\n          if a then\n            b()\n\n          end\n        </OnLoad>"));
}

TEST(MarkupWriter, CommentsStay)
{
    EXPECT_EQ("<a>\n  <!-- why -->\n  <b/>\n</a>\n", Written("<a><!-- why --><b/></a>"));
}

} // namespace
