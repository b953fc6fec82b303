// Searches the text of all pages, in the browser alone: the index is a script, which also works without a server.
document.addEventListener("DOMContentLoaded", function () {
  "use strict";
  var field = document.getElementById("find"), list = document.getElementById("found");
  var mostShown = 30;

  function load() {
    if (document.getElementById("index"))
      return;
    var script = document.createElement("script");
    script.id = "index";
    script.src = "search_index.js";
    script.onload = show;
    document.head.appendChild(script);
  }

  // 0: a word is missing. Words in the title count most, then whole words.
  function rank(title, text, words) {
    var total = 0;
    for (var i = 0; i < words.length; ++i) {
      var inTitle = title.indexOf(words[i]), inText = text.indexOf(words[i]);
      if (inTitle < 0 && inText < 0)
        return 0;
      total += 1 + (inTitle >= 0 ? 20 : 0) + (inTitle === 0 ? 10 : 0) + (title === words[i] ? 20 : 0) +
        ((" " + text + " ").indexOf(" " + words[i] + " ") >= 0 ? 5 : 0);
    }
    return total;
  }

  function excerpt(text, word) {
    var at = Math.max(0, text.toLowerCase().indexOf(word));
    var begin = at < 60 ? 0 : text.indexOf(" ", at - 60) + 1;
    return (begin > 0 ? "\u2026 " : "") + text.slice(begin, begin + 160) + (begin + 160 < text.length ? " \u2026" : "");
  }

  function row(page, words) {
    var item = document.createElement("li"), link = document.createElement("a"), text = document.createElement("p");
    link.href = page[0];
    link.textContent = page[1];
    text.textContent = excerpt(page[2], words[0]);
    item.append(link, text);
    return item;
  }

  function show() {
    var words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
    list.textContent = "";
    list.hidden = words.length === 0 || !window.searchIndex;
    if (list.hidden)
      return;
    var ranked = searchIndex.map(function (page) {
      return { page: page, rank: rank(page[1].toLowerCase(), page[2].toLowerCase(), words) };
    }).filter(function (one) { return one.rank > 0; });
    ranked.sort(function (left, right) { return right.rank - left.rank; });
    ranked.slice(0, mostShown).forEach(function (one) { list.appendChild(row(one.page, words)); });
    if (ranked.length === 0)
      list.textContent = "Nothing found.";
  }

  field.addEventListener("focus", load);
  field.addEventListener("input", show);
  document.addEventListener("keydown", function (event) {
    if (event.key === "Escape")
      list.hidden = true;
    else if (event.key === "Enter" && event.target === field && list.querySelector("a"))
      location.href = list.querySelector("a").href;
  });
  document.addEventListener("click", function (event) {
    if (!event.target.closest("#search"))
      list.hidden = true;
  });
});
