// Lists the effects whose class, class id or keys contain what is typed; `EFFECTS` comes from the pages of the reference.
const input = document.getElementById("effect-search");
const results = document.getElementById("effect-results");
const count = document.getElementById("effect-count");

function element(name, text) {
  const made = document.createElement(name);
  made.textContent = text;
  return made;
}

function show() {
  const text = input.value.trim().toLowerCase();
  const found = [];
  for (const effect of EFFECTS) {
    const keys = text ? effect.keys.filter((key) => key.toLowerCase().includes(text)) : [];
    if (keys.length || effect.name.toLowerCase().includes(text) || effect.id.toLowerCase().includes(text)) {
      found.push({ effect, keys });
    }
  }
  // A key of just this name comes before a key that contains it.
  const isExact = ({ effect, keys }) => [effect.name, effect.id, ...keys].some((name) => name.toLowerCase() === text);
  found.sort((a, b) => isExact(b) - isExact(a));
  count.textContent = `${found.length} of ${EFFECTS.length} classes`;
  results.replaceChildren(
    ...found.map(({ effect, keys }) => {
      const item = document.createElement("li");
      const link = element("a", effect.name);
      link.href = `../reference/${effect.page}.html#${effect.name.toLowerCase()}`;
      item.append(link, " ", element("code", effect.id));
      if (keys.length) {
        item.append(element("small", keys.join(", ")));
      }
      return item;
    }),
  );
}

input.value = new URLSearchParams(location.search).get("q") ?? "";
input.addEventListener("input", show);
show();
