// The proof of a catalogue: sorts and filters tables, and switches parts of drawings. Everything
// that it needs stands in the page. Without it all is shown.
'use strict';

(() => {
  document.documentElement.classList.add('has-script');

  // The state of all lists is in the address, behind "#", so that a link shows the same. Without
  // a "=" there stands the name of a heading.
  function readState() {
    const text = location.hash.slice(1);
    return new URLSearchParams(text.includes('=') ? text : '');
  }

  // "26-154/2" is every second count from 26 to 154.
  function countsOf(text) {
    return text.split(' ').filter(Boolean).map(part => part.split(/[-/]/).map(Number));
  }
  function offers(counts, pages) {
    return counts.some(([first, last = first, step = 1]) =>
      pages >= first && pages <= last && (pages - first) % step === 0);
  }

  // Of a length in tenths of a millimetre, or "".
  const isAtLeast = (length, asked) => length && Number(length) >= asked * 10;
  const isAtMost = (length, asked) => length && Number(length) <= asked * 10;

  // The same for texts that look the same, whatever their case: "ß" is "SS" in capitals.
  const folded = text => text.normalize('NFKC').toUpperCase().toLowerCase();

  // By the name of a field: whether a row fits what the field asks for.
  const tests = {
    text: (row, asked) => folded(asked).split(/\s+/).every(word => row.text.includes(word)),
    'width-from': (row, asked) => isAtLeast(row.width, asked),
    'width-to': (row, asked) => isAtMost(row.width, asked),
    'height-from': (row, asked) => isAtLeast(row.height, asked),
    'height-to': (row, asked) => isAtMost(row.height, asked),
    pages: (row, asked) => offers(row.counts, Number(asked)),
  };

  function makeList(list) {
    const { prefix } = list.dataset;
    const form = list.querySelector('form');
    const table = list.querySelector('table');
    const rows = Array.from(table.tBodies[0].rows, element => {
      const row = { element, ...element.dataset };
      row.text = folded(row.text ?? '');
      row.counts = countsOf(row.counts ?? '');
      return row;
    });
    const heads = Array.from(table.tHead.rows[0].cells);
    const fields = Array.from(form?.elements ?? []).filter(field => field.name);
    let sorted = ''; // the key of a column, after "-" if it descends

    function filter() {
      const asked = fields.filter(field => field.value);
      let hits = 0;
      for (const row of rows) {
        const fits = asked.every(({ name, value }) =>
          name in tests ? tests[name](row, value) : row[name] === value);
        row.element.hidden = !fits;
        hits += fits;
      }
      const output = form?.querySelector('output');
      if (output)
        output.textContent = output.dataset.text.replace('%1', hits).replace('%2', rows.length);
    }
    function sort() {
      const isDown = sorted.startsWith('-');
      const column = heads.findIndex(head => head.dataset.key === sorted.replace('-', ''));
      for (const head of heads)
        head.removeAttribute('aria-sort');
      const order = rows.slice();
      if (sorted && column >= 0) {
        heads[column].setAttribute('aria-sort', isDown ? 'descending' : 'ascending');
        const compare = new Intl.Collator(document.documentElement.lang, { numeric: true }).compare;
        const valueOf = ({ element: { cells } }) =>
          cells[column].dataset.sort ?? cells[column].textContent;
        const values = new Map(rows.map(row => [row, valueOf(row)]));
        order.sort((a, b) => (isDown ? -1 : 1) * compare(values.get(a), values.get(b)));
      }
      table.tBodies[0].append(...order.map(row => row.element));
    }
    function remember() {
      const state = readState();
      for (const { name, value } of [...fields, { name: 'sort', value: sorted }]) {
        if (value)
          state.set(prefix + name, value);
        else
          state.delete(prefix + name);
      }
      const text = String(state);
      if (text || location.hash.includes('='))
        history.replaceState(null, '', `#${text}`);
    }
    function recall() {
      const state = readState();
      for (const field of fields)
        field.value = state.get(prefix + field.name) ?? '';
      sorted = state.get(prefix + 'sort') ?? '';
      sort();
      filter();
    }

    for (const head of heads) {
      const { key } = head.dataset;
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
    form?.addEventListener('submit', event => event.preventDefault());
    form?.addEventListener('input', () => { filter(); remember(); });
    form?.addEventListener('reset', () => setTimeout(() => { filter(); remember(); }));
    recall();
    return { remember, recall };
  }

  function switchDrawings(drawings) {
    const update = () => {
      const chosen = drawings.querySelector('input[type="radio"]:checked');
      for (const drawing of drawings.querySelectorAll('.drawing'))
        drawing.hidden = chosen !== null
          && !drawing.dataset.counts.split(' ').includes(chosen.value);
      for (const box of drawings.querySelectorAll('input[type="checkbox"]')) {
        for (const layer of drawings.querySelectorAll(`g.layer.${box.value}`))
          layer.style.display = box.checked ? '' : 'none';
      }
    };
    drawings.addEventListener('change', update);
    drawings.addEventListener('submit', event => event.preventDefault());
    update();
  }

  // On paper a drawing has no words, and needs no room for them.
  function cropDrawings() {
    const boxes = new Map();
    addEventListener('beforeprint', () => {
      for (const drawing of document.querySelectorAll('.drawing svg')) {
        const { total, canvas } = drawing.querySelector('.sheet').dataset;
        const [left, top, width, height] = total.split(' ').map(Number);
        const [canvasLeft, canvasTop] = canvas.split(' ').map(Number);
        const edge = Math.max(width, height) / 20; // marks and hooks stand there
        boxes.set(drawing, drawing.getAttribute('viewBox'));
        drawing.setAttribute('viewBox', [left - canvasLeft - edge, top - canvasTop - edge,
                                         width + 2 * edge, height + 2 * edge].join(' '));
      }
    });
    addEventListener('afterprint', () => {
      for (const [drawing, box] of boxes)
        drawing.setAttribute('viewBox', box);
    });
  }

  const lists = Array.from(document.querySelectorAll('.list'), makeList);
  addEventListener('hashchange', () => {
    const isState = location.hash.includes('='); // not after a link to a heading
    for (const { recall, remember } of lists)
      (isState ? recall : remember)();
  });
  for (const drawings of document.querySelectorAll('.drawings'))
    switchDrawings(drawings);
  cropDrawings();
})();
