"use strict";
(function () {
  var data = JSON.parse(document.getElementById("data").textContent);
  var arches = Array.prototype.slice.call(document.querySelectorAll(".ap"));
  var panels = document.querySelector(".panels");
  var tip = document.getElementById("tip");
  var pinned = null;

  function byNumber(number) {
    return data.accessPoints[number - 1];
  }

  function element(name, text) {
    var made = document.createElement(name);
    if (text !== undefined)
      made.textContent = text;
    return made;
  }

  // --- Details of one access point

  function facts(point) {
    var rates = point.ratesKbps;
    var list = [
      ["BSSID", point.bssid],
      ["Signal", point.rssi + " dBm (" + point.quality + "%)"],
      ["Channel", point.channel + " (" + point.band + "), " + point.frequencyKhz / 1000 + " MHz"],
      ["Width", point.widthKnown ? point.widthMhz + " MHz around " + point.centreKhz / 1000 + " MHz" : "unknown"],
      ["Security", point.security],
      ["PHY", point.phy + (point.streams ? ", " + point.streams + " streams" : "")]
    ];
    if (rates.length)
      list.push(["Rates", rates[0] / 1000 + " to " + rates[rates.length - 1] / 1000 + " Mbit/s"]);
    if (point.streams && point.fastestKbps)
      list.push(["At best", Math.floor(point.fastestKbps / 1000) + " Mbit/s"]);
    if (point.bssType !== "infrastructure")
      list.push(["Kind", point.bssType]);
    if (point.inUse)
      list.push(["Link", "in use"]);
    return list;
  }

  function fillTip(point) {
    var list = element("dl");
    facts(point).forEach(function (pair) {
      list.appendChild(element("dt", pair[0]));
      list.appendChild(element("dd", pair[1]));
    });
    tip.textContent = "";
    tip.appendChild(element("b", point.ssidHex ? point.ssid : "(hidden)"));
    tip.appendChild(list);
  }

  function placeTip(x, y) {
    var box = tip.getBoundingClientRect();
    var left = x + 16 + box.width < window.innerWidth ? x + 16 : x - 16 - box.width;
    var top = y + 16 + box.height < window.innerHeight ? y + 16 : y - 16 - box.height;
    tip.style.left = Math.max(8, left) + "px";
    tip.style.top = Math.max(8, top) + "px";
  }

  function light(number, on) {
    var arch = document.getElementById("arch-" + number);
    var row = document.getElementById("row-" + number);
    if (arch)
      arch.classList.toggle("lit", on);
    if (row)
      row.classList.toggle("lit", on);
    panels.classList.toggle("has-lit", on && arch !== null);
  }

  function show(arch, x, y) {
    hide();
    light(arch.dataset.ap, true);
    fillTip(byNumber(arch.dataset.ap));
    tip.hidden = false;
    if (x === undefined) {
      var box = arch.querySelector("path").getBoundingClientRect();
      x = box.left + box.width / 2;
      y = box.top;
    }
    placeTip(x, y);
  }

  function hide() {
    tip.hidden = true;
    pinned = null;
    document.querySelectorAll(".lit").forEach(function (lit) { lit.classList.remove("lit"); });
    if (panels)
      panels.classList.remove("has-lit");
  }

  function step(arch, by) {
    var own = Array.prototype.filter.call(arch.closest("svg").querySelectorAll(".ap:not(.off)"), Boolean);
    own.sort(function (left, right) {
      var a = byNumber(left.dataset.ap), b = byNumber(right.dataset.ap);
      return a.centreKhz - b.centreKhz || b.rssi - a.rssi;
    });
    var next = own[(own.indexOf(arch) + by + own.length) % own.length];
    arch.setAttribute("tabindex", "-1");
    next.setAttribute("tabindex", "0");
    next.focus();
  }

  arches.forEach(function (arch) {
    arch.addEventListener("pointermove", function (event) {
      if (event.pointerType === "mouse" && !pinned)
        show(arch, event.clientX, event.clientY);
    });
    arch.addEventListener("pointerleave", function (event) {
      if (event.pointerType === "mouse" && !pinned)
        hide();
    });
    arch.addEventListener("focus", function () { if (arch.matches(":focus-visible")) show(arch); });
    arch.addEventListener("blur", hide);
    arch.addEventListener("click", function (event) {
      var again = pinned === arch;
      hide();
      if (!again) {
        show(arch, event.clientX, event.clientY);
        pinned = arch;
      }
      event.stopPropagation();
    });
    arch.addEventListener("keydown", function (event) {
      if (event.key === "ArrowRight" || event.key === "ArrowDown")
        step(arch, 1);
      else if (event.key === "ArrowLeft" || event.key === "ArrowUp")
        step(arch, -1);
      else
        return;
      event.preventDefault();
    });
  });
  document.addEventListener("click", hide);
  document.addEventListener("keydown", function (event) { if (event.key === "Escape") hide(); });

  // Where a panel is wider than the screen, the arch that matters most comes into view first.
  document.querySelectorAll(".panel .scroll").forEach(function (scroll) {
    var arch = scroll.querySelector(".ap.used") || scroll.querySelector(".ap:not(.off)");
    if (!arch || scroll.scrollWidth <= scroll.clientWidth)
      return;
    var box = arch.querySelector("path").getBoundingClientRect(), own = scroll.getBoundingClientRect();
    scroll.scrollLeft += box.left + box.width / 2 - own.left - own.width / 2;
  });

  // --- The table

  var table = document.getElementById("table");
  var body = table.tBodies[0];

  function valueOf(row, column, kind) {
    var cell = row.cells[column];
    var value = cell.dataset.v !== undefined ? cell.dataset.v : cell.textContent;
    return kind === "number" ? Number(value) : value;
  }

  function sortBy(header, column) {
    var kind = header.dataset.sort;
    var before = header.getAttribute("aria-sort");
    // Numbers begin with the largest, as people look for the strongest and the widest.
    var descending = before ? before === "ascending" : kind === "number";
    var order = new Intl.Collator("en", { numeric: true, sensitivity: "base" });
    var rows = Array.prototype.slice.call(body.rows);
    rows.sort(function (left, right) {
      var a = valueOf(left, column, kind), b = valueOf(right, column, kind);
      var result = kind === "number" ? a - b : order.compare(a, b);
      return descending ? -result : result;
    });
    rows.forEach(function (row) { body.appendChild(row); });
    table.querySelectorAll("th[aria-sort]").forEach(function (other) { other.removeAttribute("aria-sort"); });
    header.setAttribute("aria-sort", descending ? "descending" : "ascending");
    document.getElementById("say").textContent =
      "Sorted by " + header.textContent + ", " + (descending ? "descending" : "ascending");
  }

  Array.prototype.forEach.call(table.tHead.rows[0].cells, function (header, column) {
    var button = element("button", header.textContent);
    button.type = "button";
    button.addEventListener("click", function () { sortBy(header, column); });
    header.textContent = "";
    header.appendChild(button);
  });

  Array.prototype.forEach.call(body.rows, function (row) {
    if (!row.dataset.ap)
      return;
    row.addEventListener("mouseenter", function () { hide(); light(row.dataset.ap, true); });
    row.addEventListener("mouseleave", hide);
  });

  // --- The spectrum as it was at each moment

  function reshape(arch, rssi) {
    var path = arch.querySelector("path");
    if (!arch.home)
      arch.home = { d: path.getAttribute("d"), rssi: byNumber(arch.dataset.ap).rssi };
    var scale = arch.ownerSVGElement.dataset;
    var strongest = Number(scale.strongest), weakest = Number(scale.weakest);
    var top = Number(scale.top), bottom = Number(scale.bottom);
    function y(dbm) {
      var shown = Math.max(weakest, Math.min(strongest, dbm));
      return top + (strongest - shown) / (strongest - weakest) * (bottom - top);
    }
    var from = y(arch.home.rssi), to = y(rssi);
    // Two feet on the ground, and five points between them at the arch's own height.
    var n = arch.home.d.match(/-?[\d.]+/g).map(Number);
    for (var i = 3; i < n.length - 2; i += 2)
      n[i] = to;
    path.setAttribute("d", "M" + n[0] + "," + n[1] + "C" + n[2] + "," + n[3] + " " + n[4] + "," + n[5] + " " + n[6] + "," +
      n[7] + "C" + n[8] + "," + n[9] + " " + n[10] + "," + n[11] + " " + n[12] + "," + n[13] + "Z");
    Array.prototype.forEach.call(arch.querySelectorAll("text,.leader"), function (part) {
      part.setAttribute("transform", "translate(0 " + (to - from) + ")");
    });
  }

  function showMoment(second) {
    var linked = data.samples[second].connected ? data.samples[second].bssid : "";
    arches.forEach(function (arch) {
      var point = byNumber(arch.dataset.ap);
      var series = data.heard[point.bssid];
      var rssi = series ? series[second] : null;
      arch.classList.toggle("off", rssi === null);
      arch.classList.toggle("used", point.bssid === linked);
      var label = arch.querySelector("text");
      label.textContent = (point.bssid === linked ? "\u25cf " : "") + label.textContent.replace(/^\u25cf /, "");
      if (rssi !== null)
        reshape(arch, rssi);
    });
  }

  function addPlayer() {
    var last = data.samples.length - 1;
    var player = element("div"), play = element("button", "Play"), slider = element("input"), at = element("output");
    var timer = 0;
    player.className = "player";
    play.type = "button";
    slider.type = "range";
    slider.min = 0;
    slider.max = last;
    slider.value = last;
    slider.setAttribute("aria-label", "Moment that the spectrum shows, in seconds");
    function show() {
      at.textContent = data.samples[slider.value].second + " s";
      showMoment(Number(slider.value));
    }
    function stop() {
      clearInterval(timer);
      timer = 0;
      play.textContent = "Play";
    }
    slider.addEventListener("input", function () { stop(); show(); });
    play.addEventListener("click", function () {
      if (timer)
        return stop();
      if (Number(slider.value) === last)
        slider.value = 0;
      play.textContent = "Pause";
      timer = setInterval(function () {
        slider.value = Number(slider.value) + 1;
        show();
        if (Number(slider.value) === last)
          stop();
      }, 100);
    });
    player.appendChild(play);
    player.appendChild(slider);
    player.appendChild(at);
    panels.parentNode.insertBefore(player, panels);
    show();
  }

  if (data.samples.length > 1 && arches.length)
    addPlayer();
}());
