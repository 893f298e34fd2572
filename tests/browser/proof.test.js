// The pages that "pxcatalogue proof" writes, in a browser: PROOF is their folder, BROWSER the program.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import { after, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import puppeteer from 'puppeteer-core';

const proof = path.resolve(process.env.PROOF);
const axe = fs.readFileSync(new URL('node_modules/axe-core/axe.min.js', import.meta.url), 'utf8');
const pages = fs.readdirSync(proof).filter(name => name.endsWith('.html'));

let browser;
let faults = []; // what the browser complained of, and requests that leave the folder

before(async () => {
  browser = await puppeteer.launch({
    executablePath: process.env.BROWSER ?? '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--lang=de',
           '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
});
after(() => browser.close());

function urlOf(name) {
  const [file, state] = name.split('#');
  return pathToFileURL(path.join(proof, file)).href + (state === undefined ? '' : `#${state}`);
}

async function open(name, { script = true, width = 1280 } = {}) {
  const page = await browser.newPage();
  await page.setViewport({ width, height: 900 });
  await page.setJavaScriptEnabled(script);
  page.on('console', message => {
    if (['error', 'warn'].includes(message.type()))
      faults.push(`${name}: ${message.text()}`);
  });
  page.on('pageerror', error => faults.push(`${name}: ${error.message}`));
  page.on('requestfailed', request => faults.push(`${name}: ${request.url()} failed`));
  page.on('request', request => {
    if (!request.url().startsWith(urlOf('')))
      faults.push(`${name}: asks for ${request.url()}`);
  });
  await page.goto(urlOf(name));
  return page;
}

async function closed(page) {
  await page.close();
  assert.deepEqual(faults.splice(0), []);
}

const shownNames = page => page.$$eval('#products tbody tr:not([hidden]) th', heads =>
  heads.map(head => head.textContent));

test('the filter lets through what fits all fields', async () => {
  const page = await open('index.html');
  const all = await shownNames(page);
  await page.select('[name=class]', 'book');
  const books = await shownNames(page);
  assert.ok(books.length > 0 && books.length < all.length);
  await page.type('[name=pages]', '60');
  await page.type('[name=to]', '200');
  const found = await shownNames(page);
  assert.ok(found.length > 0 && found.length < books.length);
  assert.equal(await page.$eval('#hits', hits => hits.textContent),
    `${found.length} / ${all.length}`);
  await page.type('[name=text]', 'no such product');
  assert.deepEqual(await shownNames(page), []);
  await page.click('[type=reset]');
  await page.waitForFunction(count =>
    document.querySelectorAll('#products tbody tr:not([hidden])').length === count, {}, all.length);
  await closed(page);
});

test('a click on a column sorts by it, a second one the other way round', async () => {
  const page = await open('index.html');
  const sizes = () => page.$$eval('#products tbody tr td:nth-child(7)', cells =>
    cells.map(cell => Number(cell.dataset.sort)));
  const column = '#products th[data-key=size]';
  await page.click(`${column} button`);
  assert.deepEqual(await sizes(), (await sizes()).sort((a, b) => a - b));
  assert.equal(await page.$eval(column, head => head.ariaSort), 'ascending');
  await page.click(`${column} button`);
  assert.deepEqual(await sizes(), (await sizes()).sort((a, b) => b - a));
  assert.equal(await page.$eval(column, head => head.ariaSort), 'descending');
  await closed(page);
});

test('the address has the state, so that a link shows the same', async () => {
  const page = await open('index.html');
  await page.select('[name=class]', 'calendar');
  await page.click('#products th[data-key=name] button');
  await page.click('#products th[data-key=name] button');
  const state = await page.evaluate(() => location.hash.slice(1));
  const names = await shownNames(page);
  assert.deepEqual(names, [...names].sort().reverse());
  const other = await open(`index.html#${state}`);
  assert.deepEqual(await shownNames(other), names);
  await closed(page);
  await closed(other);
});

test('page counts and layers of the drawings are switched', async () => {
  const page = await open('product-book-a4-portrait.html');
  const counts = () => page.$$eval('.drawing', drawings =>
    drawings.filter(drawing => drawing.checkVisibility()).map(drawing => drawing.dataset.count));
  assert.equal((await counts()).length, 1);
  const largest = await page.$$eval('.drawings input[type=radio]', boxes => boxes.at(-1).value);
  await page.click(`.drawings input[type=radio][value="${largest}"]`);
  assert.deepEqual(await counts(), [largest]);
  const bleeds = () => page.$$eval(`.drawing[data-count="${largest}"] g.layer.bleed`, layers =>
    layers.map(layer => getComputedStyle(layer).display !== 'none'));
  assert.ok((await bleeds()).every(isSeen => isSeen));
  await page.click('.drawings input[value=bleed]');
  assert.ok((await bleeds()).every(isSeen => !isSeen));
  await closed(page);
});

test('everything is reached by the keyboard', async () => {
  const page = await open('index.html');
  await page.keyboard.press('Tab');
  assert.equal(await page.evaluate(() => document.activeElement.className), 'skip');
  await page.focus('#products th[data-key=name] button');
  await page.keyboard.press('Enter');
  assert.equal(await page.$eval('#products th[data-key=name]', head => head.ariaSort), 'ascending');
  const isStyled = await page.evaluate(() =>
    getComputedStyle(document.activeElement).outlineStyle !== 'none');
  assert.ok(isStyled, 'the focus is seen');
  const product = await open('product-book-a4-portrait.html');
  await product.focus('.drawings input[value=bleed]');
  await product.keyboard.press('Space');
  assert.equal(await product.$eval('g.layer.bleed', layer => getComputedStyle(layer).display),
    'none');
  await closed(page);
  await closed(product);
});

test('without a script all is there, and no control that does nothing', async () => {
  const page = await open('index.html', { script: false });
  assert.ok((await page.$$('#products tbody tr')).length > 40);
  assert.equal(await page.$('#products button'), null);
  const form = await page.$('#filter');
  assert.equal(await form.isVisible(), false);
  const product = await open('product-book-a4-portrait.html', { script: false });
  for (const drawing of await product.$$('.drawing'))
    assert.ok(await drawing.isVisible());
  await closed(page);
  await closed(product);
});

test('every page is accessible, in light and in dark', async () => {
  for (const scheme of ['light', 'dark']) {
    for (const name of pages) {
      const page = await open(name);
      await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
      await page.evaluate(axe);
      const violations = await page.evaluate(async () => {
        const found = await axe.run(document, {
          preload: false, // it would fetch, which the policy of the pages forbids
          runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa'],
        });
        return found.violations.map(fault =>
          `${fault.id}: ${fault.nodes[0].html.slice(0, 200)} ${fault.nodes[0].failureSummary}`);
      });
      assert.deepEqual(violations, [], `${name}, ${scheme}`);
      await closed(page);
    }
  }
});

test('no page is wider than a small screen', async () => {
  for (const name of pages) {
    const page = await open(name, { width: 360 });
    const excess = await page.evaluate(() =>
      document.documentElement.scrollWidth - document.documentElement.clientWidth);
    assert.equal(excess, 0, name);
    await closed(page);
  }
});
