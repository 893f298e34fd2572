// The proof of a catalogue: sorts and filters the table of products, and switches parts of
// drawings. Everything that it needs stands in the page. Without it all is shown.
'use strict';

(() => {
  document.documentElement.classList.add('has-script');

  const products = document.getElementById('products');
  if (products)
    listProducts(products);
  for (const drawings of document.querySelectorAll('.drawings'))
    switchDrawings(drawings);

  // The state of the form is in the address, behind "#", so that a link shows the same.
  function listProducts(table) {
    const form = document.getElementById('filter');
    const hits = document.getElementById('hits');
    const body = table.tBodies[0];
    const rows = Array.from(body.rows, row => ({
      row,
      text: row.dataset.text,
      data: row.dataset,
      counts: ranges(row.dataset.counts),
    }));
    const heads = Array.from(table.tHead.rows[0].cells);
    const fields = Array.from(form.elements).filter(field => field.name);
    let sorted = '';

    function ranges(text) {
      return text.split(' ').filter(Boolean).map(part => part.split(/[-/]/).map(Number));
    }
    function offers(counts, pages) {
      return counts.some(([first, last = first, step = 1]) =>
        pages >= first && pages <= last && (pages - first) % step === 0);
    }
    function fits(entry, asked) {
      const { data } = entry;
      const words = asked.text.toLowerCase().split(/\s+/);
      return words.every(word => entry.text.includes(word))
        && ['class', 'binding', 'paper', 'orientation']
          .every(key => !asked[key] || data[key] === asked[key])
        && (!asked.from || Number(data.longest) >= asked.from * 10)
        && (!asked.to || (data.longest && Number(data.longest) <= asked.to * 10))
        && (!asked.pages || offers(entry.counts, Number(asked.pages)));
    }
    function filter() {
      const asked = Object.fromEntries(fields.map(field => [field.name, field.value]));
      let count = 0;
      for (const entry of rows) {
        const isShown = fits(entry, asked);
        entry.row.hidden = !isShown;
        count += isShown;
      }
      hits.textContent = `${count} / ${rows.length}`;
    }
    function sort() {
      const [key, isDown] = sorted.startsWith('-') ? [sorted.slice(1), true] : [sorted, false];
      const column = heads.findIndex(head => head.dataset.key === key);
      heads.forEach((head, index) => {
        if (index === column)
          head.setAttribute('aria-sort', isDown ? 'descending' : 'ascending');
        else
          head.removeAttribute('aria-sort');
      });
      const order = rows.slice();
      if (column >= 0) {
        const valueOf = entry => entry.row.cells[column].dataset.sort
          ?? entry.row.cells[column].textContent;
        const values = new Map(order.map(entry => [entry, valueOf(entry)]));
        const compare = new Intl.Collator(document.documentElement.lang, { numeric: true }).compare;
        order.sort((a, b) => (isDown ? -1 : 1) * compare(values.get(a), values.get(b)));
      }
      body.append(...order.map(entry => entry.row));
    }
    function remember() {
      const state = new URLSearchParams();
      for (const field of fields) {
        if (field.value)
          state.set(field.name, field.value);
      }
      if (sorted)
        state.set('sort', sorted);
      const text = state.toString();
      history.replaceState(null, '', text ? `#${text}` : location.pathname + location.search);
    }
    function recall() {
      const state = new URLSearchParams(location.hash.slice(1));
      for (const field of fields)
        field.value = state.get(field.name) ?? '';
      sorted = state.get('sort') ?? '';
      sort();
      filter();
    }

    for (const head of heads) {
      const key = head.dataset.key;
      if (!key)
        continue;
      const button = document.createElement('button');
      button.type = 'button';
      button.append(...head.childNodes);
      button.addEventListener('click', () => {
        sorted = sorted === key ? `-${key}` : key;
        sort();
        remember();
      });
      head.append(button);
    }
    form.addEventListener('submit', event => event.preventDefault());
    form.addEventListener('input', () => { filter(); remember(); });
    form.addEventListener('reset', () => setTimeout(() => { filter(); remember(); }));
    addEventListener('hashchange', recall);
    recall();
  }

  function switchDrawings(drawings) {
    const update = () => {
      const chosen = drawings.querySelector('input[type="radio"]:checked');
      for (const drawing of drawings.querySelectorAll('.drawing'))
        drawing.hidden = chosen !== null && drawing.dataset.count !== chosen.value;
      for (const box of drawings.querySelectorAll('input[type="checkbox"]')) {
        for (const layer of drawings.querySelectorAll(`g.layer.${box.value}`))
          layer.style.display = box.checked ? '' : 'none';
      }
    };
    drawings.addEventListener('change', update);
    update();
  }
})();
