// A browser without a network, for the tests and the pictures.
import puppeteer from 'puppeteer-core';

export function launch() {
  return puppeteer.launch({
    executablePath: process.env.BROWSER ?? '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--lang=de',
           '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
}
