#pragma once

#include <string_view>

namespace kinalyx {

// What stands in every page as it is. The script needs no "<" and no "&", so that the page is well-formed for readers
// of XML too.

inline constexpr std::string_view kPageStyle = R"(
:root { color-scheme: dark; }
* { box-sizing: border-box; }
body { margin: 0; background: #14181d; color: #e8ebef; font: 1rem/1.45 system-ui, sans-serif; }
header, main { max-width: 64rem; margin: 0 auto; padding: .75rem 1rem; }
header { display: flex; align-items: center; gap: .9rem; }
header img { max-height: 3.5rem; max-width: 9rem; }
header p { margin: 0; }
.style4 { font-size: 1.2rem; font-weight: 600; }
.company, .student, #date, label, .playlist { color: #9aa5b1; font-size: .9rem; }
main { padding-top: 0; }
video { display: block; width: 100%; max-height: max(100vh - 22rem, 56vh); background: #000;
  border-radius: .4rem; }
@media (max-height: 30rem) { video { max-height: 80vh; } }
h1 { font-size: 1.05rem; margin: .7rem 0 0; min-height: 1.5rem; overflow-wrap: anywhere; }
.row { display: grid; grid-template-columns: repeat(3, 1fr); gap: .5rem; margin: .7rem 0; }
button, select { width: 100%; min-height: 2.9rem; padding: .4rem .7rem; font: inherit; color: inherit;
  background: #222a33; border: 1px solid #3a4652; border-radius: .4rem; }
button[aria-pressed=true] { background: #2f6fb0; border-color: #2f6fb0; }
button:focus-visible, select:focus-visible, a:focus-visible { outline: 2px solid #6db3f2; outline-offset: 2px; }
label { display: block; margin: .2rem 0 .3rem; }
a { color: #8cc4f5; }
#date { margin: 0; }
#words:empty { display: none; }
)";

/// With places for the words of its three buttons and their tips.
inline constexpr std::string_view kPageStage =
    "<video id=\"video\" controls=\"controls\" playsinline=\"playsinline\" preload=\"metadata\"></video>\r\n"
    "<h1 id=\"title\"></h1>\r\n<p id=\"date\"></p>\r\n"
    "<div class=\"row\">\r\n"
    "<button type=\"button\" id=\"back\" title=\"{}\">\u2039 {}</button>\r\n"
    "<button type=\"button\" id=\"half\" aria-pressed=\"false\" title=\"{}\">{}</button>\r\n"
    "<button type=\"button\" id=\"on\" title=\"{}\">{} \u203a</button>\r\n"
    "</div>\r\n";

inline constexpr std::string_view kPageScript = R"(
'use strict';
const part = function (id) { return document.getElementById(id); };
const video = part('video'), list = part('list'), half = part('half'), words = part('words');
const notes = {};
document.querySelectorAll('#notes li').forEach(function (note) {
  notes[note.title] = { step: Number(note.dataset.step), date: note.textContent };
});
// The middle of a picture is asked for: its edge may give its neighbour.
let step = 1 / 30, shown = -1, whole = '';
const told = function (date) {
  const day = new Date(date + 'T12:00:00');
  return isNaN(day) ? date : day.toLocaleDateString(undefined, { year: 'numeric', month: 'long', day: 'numeric' });
};
const choose = function () {
  const chosen = list.options[list.selectedIndex];
  if (!chosen) {
    words.textContent = '@none';
    return;
  }
  const note = notes[chosen.value] || {};
  words.textContent = '';
  step = note.step || 1 / 30;
  shown = -1;
  URL.revokeObjectURL(whole);
  part('title').textContent = chosen.text.trim();
  part('date').textContent = note.date ? told(note.date) : '';
  // Some telephones show no picture before they are sent to one.
  video.src = chosen.value.replace(/\.wmv$/i, '.mp4') + '#t=0.001';
  video.playbackRate = video.defaultPlaybackRate;
};
const move = function (pictures) {
  video.pause();
  const from = shown >= 0 ? shown + step / 2 : video.currentTime;
  video.currentTime = Math.max(0, from + pictures * step);
};
const follow = function (now, picture) {
  shown = picture.mediaTime;
  video.requestVideoFrameCallback(follow);
};
if (video.requestVideoFrameCallback) video.requestVideoFrameCallback(follow);
const slow = function () {
  const wanted = half.getAttribute('aria-pressed') !== 'true';
  half.setAttribute('aria-pressed', String(wanted));
  video.defaultPlaybackRate = video.playbackRate = wanted ? 0.5 : 1;
};
list.addEventListener('change', function () {
  choose();
  const playing = video.play();
  if (playing) playing.catch(function () {});
});
half.addEventListener('click', slow);
part('back').addEventListener('click', function () { move(-1); });
part('on').addEventListener('click', function () { move(1); });
document.addEventListener('keydown', function (key) {
  if (key.target === list || key.ctrlKey || key.altKey || key.metaKey) return;
  if (key.key === 'ArrowLeft') move(-1);
  else if (key.key === 'ArrowRight') move(1);
  else if (key.key === 'h' || key.key === 'H') slow();
  else return;
  key.preventDefault();
});
// A server that sends no parts of a file lets nobody step: the file is fetched whole.
video.addEventListener('loadedmetadata', function () {
  const reach = video.seekable.length > 0 ? video.seekable.end(0) : 0;
  if (reach > 0 || !/^http/.test(video.src)) return;
  const from = video.src;
  fetch(from).then(function (answer) { return answer.blob(); }).then(function (file) {
    if (video.src !== from) return;
    const playing = !video.paused;
    shown = -1;
    video.src = whole = URL.createObjectURL(file);
    if (playing) video.play().catch(function () {});
  }).catch(function () {});
});
video.addEventListener('error', function () {
  const link = document.createElement('a');
  link.href = list.value;
  link.textContent = '@fetch';
  words.textContent = '@cannot';
  words.appendChild(link);
});
choose();
)";

}  // namespace kinalyx
