<?xml version="1.0"?>
<!-- Makes manual pages of what doxygen read: one for each call, and one for each group, which is
     named after the kind that it is about. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"
    xmlns:exsl="http://exslt.org/common" extension-element-prefixes="exsl">
  <xsl:output method="text"/>
  <xsl:param name="version"/>
  <xsl:param name="date"/>
  <xsl:param name="folder"/>

  <xsl:template match="/doxygenindex">
    <xsl:for-each select="compound[@kind='group']">
      <xsl:apply-templates select="document(concat(@refid, '.xml'), .)/doxygen/compounddef"/>
    </xsl:for-each>
  </xsl:template>

  <xsl:template match="compounddef">
    <xsl:variable name="page">
      <xsl:call-template name="page"/>
    </xsl:variable>
    <xsl:variable name="title" select="title"/>
    <exsl:document href="{$folder}/{$page}.3" method="text" encoding="UTF-8">
      <xsl:call-template name="head">
        <xsl:with-param name="name" select="$page"/>
        <xsl:with-param name="brief" select="title"/>
        <xsl:with-param name="title" select="$title"/>
      </xsl:call-template>
      <xsl:for-each select="innerclass">
        <xsl:apply-templates select="document(concat(@refid, '.xml'), .)/doxygen/compounddef" mode="record"/>
      </xsl:for-each>
      <xsl:apply-templates select="sectiondef/memberdef[@kind='function']" mode="prototype"/>
      <xsl:if test="briefdescription/* or detaileddescription/*">
        <xsl:text>.SH DESCRIPTION&#10;</xsl:text>
        <xsl:apply-templates select="briefdescription/*|detaileddescription/*"/>
      </xsl:if>
      <xsl:if test="sectiondef/memberdef[@kind='define' or @kind='enum']">
        <xsl:text>.SH NAMES&#10;</xsl:text>
        <xsl:apply-templates select="sectiondef/memberdef[@kind='enum' or @kind='define']" mode="names"/>
      </xsl:if>
      <xsl:call-template name="foot"/>
    </exsl:document>
    <!-- Other kinds of the same group. -->
    <xsl:for-each select="sectiondef/memberdef[starts-with(name, 'kul') and
        substring-after(name, '_') = 'create' and substring-before(name, '_') != $page]">
      <exsl:document href="{$folder}/{substring-before(name, '_')}.3" method="text">
        <xsl:value-of select="concat('.so man3/', $page, '.3&#10;')"/>
      </exsl:document>
    </xsl:for-each>
    <xsl:for-each select="sectiondef/memberdef[@kind='function']">
      <exsl:document href="{$folder}/{name}.3" method="text" encoding="UTF-8">
        <xsl:call-template name="head">
          <xsl:with-param name="name" select="name"/>
          <xsl:with-param name="brief" select="briefdescription"/>
          <xsl:with-param name="title" select="$title"/>
        </xsl:call-template>
        <xsl:apply-templates select="." mode="prototype"/>
        <xsl:text>.SH DESCRIPTION&#10;</xsl:text>
        <xsl:apply-templates select="briefdescription/*|detaileddescription/*"/>
        <xsl:call-template name="foot">
          <xsl:with-param name="page" select="$page"/>
        </xsl:call-template>
      </exsl:document>
    </xsl:for-each>
  </xsl:template>

  <!-- The name of a group's page: what is before "_create" in its first such call, else its own. -->
  <xsl:template name="page">
    <xsl:variable name="create" select="sectiondef/memberdef[starts-with(name, 'kul') and
        substring-after(name, '_') = 'create']/name"/>
    <xsl:choose>
      <xsl:when test="$create">
        <xsl:value-of select="substring-before($create, '_')"/>
      </xsl:when>
      <xsl:otherwise>
        <xsl:value-of select="concat('kulgui_', compoundname)"/>
      </xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <xsl:template name="head">
    <xsl:param name="name"/>
    <xsl:param name="brief"/>
    <xsl:param name="title"/>
    <xsl:value-of select="concat('.TH ', $name, ' 3 ', $date, ' &quot;kulgui ', $version, '&quot; &quot;',
        $title, '&quot;&#10;.SH NAME&#10;', $name, ' \- ')"/>
    <xsl:call-template name="text">
      <xsl:with-param name="text" select="normalize-space($brief)"/>
    </xsl:call-template>
    <xsl:text>&#10;.SH SYNOPSIS&#10;.ad l&#10;.nh&#10;#include &lt;kulgui.h&gt;&#10;</xsl:text>
  </xsl:template>

  <xsl:template name="foot">
    <xsl:param name="page"/>
    <xsl:text>.SH SEE ALSO&#10;</xsl:text>
    <xsl:if test="$page">
      <xsl:value-of select="concat('.BR ', $page, ' (3),&#10;')"/>
    </xsl:if>
    <xsl:text>.BR kulgui (7)&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="memberdef" mode="prototype">
    <xsl:text>.PP&#10;.in +4&#10;.ti -4&#10;\fB</xsl:text>
    <xsl:value-of select="type"/>
    <xsl:if test="substring(type, string-length(type)) != '*'">
      <xsl:text> </xsl:text>
    </xsl:if>
    <xsl:value-of select="name"/>
    <xsl:text>(\fP</xsl:text>
    <xsl:for-each select="param">
      <xsl:value-of select="type"/>
      <xsl:if test="declname and substring(type, string-length(type)) != '*'">
        <xsl:text> </xsl:text>
      </xsl:if>
      <xsl:if test="declname">
        <xsl:value-of select="concat('\fI', declname, '\fP', array)"/>
      </xsl:if>
      <xsl:if test="position() != last()">
        <xsl:text>, </xsl:text>
      </xsl:if>
    </xsl:for-each>
    <xsl:text>\fB);\fP&#10;.in&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="memberdef" mode="names">
    <xsl:text>.TP&#10;\fB</xsl:text>
    <xsl:choose>
      <xsl:when test="@kind='define'">
        <xsl:value-of select="concat(name, '\fP ', initializer)"/>
      </xsl:when>
      <xsl:otherwise>
        <xsl:for-each select="enumvalue">
          <xsl:value-of select="concat(name, substring(', ', 1, 2 * (position() != last())))"/>
        </xsl:for-each>
        <xsl:text>\fP</xsl:text>
      </xsl:otherwise>
    </xsl:choose>
    <xsl:text>&#10;</xsl:text>
    <xsl:apply-templates select="briefdescription/*|detaileddescription/*"/>
  </xsl:template>

  <xsl:template match="compounddef" mode="record">
    <xsl:text>.PP&#10;.nf&#10;typedef struct {&#10;</xsl:text>
    <xsl:for-each select="sectiondef/memberdef">
      <xsl:text>    </xsl:text>
      <xsl:value-of select="type"/>
      <xsl:if test="substring(type, string-length(type)) != '*'">
        <xsl:text> </xsl:text>
      </xsl:if>
      <xsl:value-of select="concat(name, argsstring, ';')"/>
      <xsl:if test="briefdescription/*">
        <xsl:text>  /* </xsl:text>
        <xsl:call-template name="text">
          <xsl:with-param name="text" select="normalize-space(briefdescription)"/>
        </xsl:call-template>
        <xsl:text> */</xsl:text>
      </xsl:if>
      <xsl:text>&#10;</xsl:text>
    </xsl:for-each>
    <xsl:value-of select="concat('} \fB', compoundname, '\fP;&#10;.fi&#10;')"/>
  </xsl:template>

  <!-- What doxygen takes for the brief description is no paragraph of its own. -->
  <xsl:template match="para">
    <xsl:if test="preceding-sibling::para">
      <xsl:text>.PP&#10;</xsl:text>
    </xsl:if>
    <xsl:apply-templates/>
    <xsl:text>&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="verbatim|programlisting">
    <xsl:text>&#10;.PP&#10;.nf&#10;</xsl:text>
    <xsl:call-template name="text">
      <xsl:with-param name="text" select="."/>
    </xsl:call-template>
    <xsl:text>&#10;.fi&#10;.PP&#10;</xsl:text>
  </xsl:template>

  <xsl:template match="para//text()">
    <xsl:if test="starts-with(., ' ') and preceding-sibling::ref">
      <xsl:text> </xsl:text>
    </xsl:if>
    <xsl:call-template name="text">
      <xsl:with-param name="text" select="normalize-space(.)"/>
    </xsl:call-template>
    <xsl:if test="substring(., string-length(.)) = ' ' and following-sibling::ref">
      <xsl:text> </xsl:text>
    </xsl:if>
  </xsl:template>

  <!-- What is a word of troff's is made a letter. -->
  <xsl:template name="text">
    <xsl:param name="text"/>
    <xsl:choose>
      <xsl:when test="contains($text, '\')">
        <xsl:call-template name="minus">
          <xsl:with-param name="text" select="substring-before($text, '\')"/>
        </xsl:call-template>
        <xsl:text>\e</xsl:text>
        <xsl:call-template name="text">
          <xsl:with-param name="text" select="substring-after($text, '\')"/>
        </xsl:call-template>
      </xsl:when>
      <xsl:otherwise>
        <xsl:call-template name="minus">
          <xsl:with-param name="text" select="$text"/>
        </xsl:call-template>
      </xsl:otherwise>
    </xsl:choose>
  </xsl:template>

  <xsl:template name="minus">
    <xsl:param name="text"/>
    <xsl:choose>
      <xsl:when test="contains($text, ' -')">
        <xsl:value-of select="concat(substring-before($text, ' -'), ' \-')"/>
        <xsl:call-template name="minus">
          <xsl:with-param name="text" select="substring-after($text, ' -')"/>
        </xsl:call-template>
      </xsl:when>
      <xsl:otherwise>
        <xsl:value-of select="$text"/>
      </xsl:otherwise>
    </xsl:choose>
  </xsl:template>
</xsl:stylesheet>
