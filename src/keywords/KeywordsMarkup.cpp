// Keyword tables: markup, and the empty table.
// Order matters: a word taken by the keyword pass is gone for the words
// behind it, so an entry that holds another stands first. Repeated words
// and trailing blanks are part of the data.
#include "keywords/KeywordTables.h"

const char* szKeyWordHTM_El[] = {
    "a", "abbr", "acronym", "address", "applet", "area", "b", "base", "basefont", "bdo", "big",
    "blockquote", "body", "br", "button", "caption", "center", "cite", "code", "col",
    "colgroup", "dd", "del", "dfn", "dir", "div", "dl", "dt", "em", "fieldset", "font", "form",
    "frame", "frameset", "h1", "h2", "h3", "h4", "h5", "h6", "head", "hr", "html", "i",
    "iframe", "img", "input", "ins", "isindex", "kbd", "label", "legend", "li", "link", "map",
    "menu", "meta", "noframes", "noscript", "object", "ol", "optgroup", "option", "p", "param",
    "pre", "q", "s", "samp", "script", "select", "small", "span", "strike", "strong", "style",
    "sub", "sup", "table", "tbody", "td", "textarea", "tfoot", "th", "thead", "title", "tr",
    "tt", "u", "ul", "var", "",
};

const char* szKeyWordHTM_At[] = {
    "abbr", "accept-charset", "accept", "accesskey", "action", "align", "alink", "alt",
    "archive", "axis", "background", "bgcolor", "border", "cellpadding", "cellspacing", "char",
    "charoff", "charset", "checked", "cite", "class", "classid", "clear", "code", "codebase",
    "codetype", "color", "cols", "colspan", "compact", "content", "coords", "data", "datetime",
    "declare", "defer", "dir", "disabled", "enctype", "face", "for", "frame", "frameborder",
    "headers", "height", "href", "hreflang", "hspace", "http-equiv", "id", "ismap", "label",
    "lang", "language", "link", "longdesc", "marginheight", "marginwidth", "maxlength", "media",
    "method", "multiple", "name", "nohref", "noresize", "noshade", "nowrap", "object", "onblur",
    "onchange", "onclick", "ondblclick", "onfocus", "onkeydown", "onkeypress", "onkeyup",
    "onload", "onmousedown", "onmousemove", "onmouseout", "onmouseover", "onmouseup", "onreset",
    "onselect", "onsubmit", "onunload", "profile", "prompt", "readonly", "rel", "rev", "rows",
    "rowspan", "rules", "scheme", "scope", "scrolling", "selected", "shape", "size", "span",
    "src", "standby", "start", "style", "summary", "tabindex", "target", "text", "title",
    "type", "usemap", "valign", "value", "valuetype", "version", "vlink", "vspace", "width", "",
};

const char* szKeyWordHTM_En[] = {
    "&amp;", "&gt;", "&lt;", "&nbsp;", "&quot;", "",
};

const char* szKeyWordEmpty[] = {
    "",
};
