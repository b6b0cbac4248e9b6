"use strict";

const notes = document.getElementById("notes");
const saved = document.getElementById("saved");
const key = "quorvel.notes";

function showSaved() {
  saved.textContent = notes.value === "" ? "Nothing written yet." : "Saved on this computer.";
}

notes.value = localStorage.getItem(key) ?? "";
notes.addEventListener("input", () => {
  localStorage.setItem(key, notes.value);
  showSaved();
});
showSaved();
