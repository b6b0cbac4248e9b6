// What the agent workspace does without asking the service: decisions, switches and the chat's own lines.
"use strict";

const waiting = document.getElementById("waiting");
const tones = { Approved: "tone-green", Paused: "tone-slate" };

function showWaiting() {
  const count = document.querySelectorAll(".approval .tone-gold").length;
  waiting.textContent = count === 0 ? "None waiting" : `${count} waiting`;
  waiting.className = `pill ${count === 0 ? "tone-green" : "tone-gold"}`;
}

for (const button of document.querySelectorAll("[data-decide]")) {
  const approval = button.closest(".approval");
  button.setAttribute("aria-label", `${button.textContent}: ${approval.querySelector("h3").textContent}`);
  button.addEventListener("click", () => {
    const decision = button.dataset.decide;
    const pill = approval.querySelector(".pill");
    pill.textContent = decision;
    pill.className = `pill ${tones[decision]}`;
    for (const other of approval.querySelectorAll("button"))
      other.disabled = decision === "Approved" || other === button;
    showWaiting();
  });
}

for (const toggle of document.querySelectorAll(".switch"))
  toggle.addEventListener("change", () => {
    toggle.closest(".card").querySelector(".sync").textContent = toggle.checked ? "Connected just now" : "Disconnected";
  });

// ---- Chat ----

const thread = document.querySelector(".thread");
const composer = document.querySelector(".composer");
const draftKey = "quorvel.draft";

function say(monogram, tone, who, words) {
  const line = document.createElement("li");
  line.className = "message";
  line.innerHTML = `<span class="tile ${tone}" aria-hidden="true"></span><div><p class="who"></p><p></p></div>`;
  const [tile, name, text] = [line.querySelector(".tile"), ...line.querySelectorAll("p")];
  tile.textContent = monogram;
  name.textContent = who;
  text.textContent = words;
  thread.append(line);
}

composer.message.value = localStorage.getItem(draftKey) ?? "";
composer.message.addEventListener("input", () => localStorage.setItem(draftKey, composer.message.value));
composer.addEventListener("submit", (event) => {
  event.preventDefault();
  const words = composer.message.value.trim();
  if (words === "") return;
  say("Y", "tone-blue", "You", words);
  say("M", "tone-ink", "Main Agent", "Noted. I hand this to the right agent and come back with a draft; nothing goes out before you approve it.");
  composer.message.value = "";
  localStorage.removeItem(draftKey);
});
