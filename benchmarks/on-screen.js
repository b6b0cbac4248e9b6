// Tells the service when the page has loaded and two of its frames have been drawn.
addEventListener("load", () => {
  requestAnimationFrame(() => requestAnimationFrame(() => navigator.sendBeacon("/on-screen")));
});
