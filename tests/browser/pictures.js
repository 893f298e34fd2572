// Takes the pictures of the README: "node pictures.js PROOF PICTURES".
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { launch } from './browser.js';

const [proof, pictures] = process.argv.slice(2);
const browser = await launch();
for (const [file, picture] of [['index.html', 'proof-index.png'],
                               ['product-book-a4-portrait.html', 'proof-product.png']]) {
  const page = await browser.newPage();
  await page.setViewport({ width: 1200, height: 900 });
  await page.goto(pathToFileURL(path.join(proof, file)).href, { waitUntil: 'networkidle0' });
  await page.screenshot({ path: path.join(pictures, picture) });
}
await browser.close();
