// The loop of the peers that run on Node: the protocols of bench/DriverLoop.hpp and bench/peers/CaseLoop.hpp.
//
//   node PEER.mjs SECONDS LIST
//   node PEER.mjs --cases
import { readFileSync } from 'node:fs';

// Decoding is part of the work, as it is for the others.
const textOf = (bytes) => new TextDecoder('utf-8').decode(bytes);

/** The lines of a tree in the form of the html5lib suite. The nodes are given in the order of the document, with their depth. */
export class TreeText {
  #lines = [];
  #textDepth = null;

  line(depth, text) {
    this.#lines.push(`| ${'  '.repeat(depth)}${text}`);
    this.#textDepth = null;
  }

  /** `attributes`: pairs of the shown name and the value. */
  element(depth, name, attributes) {
    this.line(depth, `<${name}>`);
    for (const [key, value] of attributes.sort(([a], [b]) => (a < b ? -1 : Number(a > b)))) this.line(depth + 1, `${key}="${value}"`);
  }

  /** Texts that follow each other are one. */
  text(depth, text) {
    if (this.#textDepth === depth) this.#lines.push(`${this.#lines.pop().slice(0, -1)}${text}"`);
    else this.line(depth, `"${text}"`);
    this.#textDepth = depth;
  }

  toString() {
    return this.#lines.join('\n');
  }
}

/** What `show(tree, node, depth)` writes of each node below `nodes`; it answers the node's children with their depth. */
export function treeText(nodes, show) {
  const tree = new TreeText();
  const places = nodes.map((node) => [node, 0]).reverse();
  while (places.length > 0) {
    const [node, depth] = places.pop();
    const [children, childDepth] = show(tree, node, depth) ?? [[], 0];
    for (let i = children.length; i > 0; --i) places.push([children[i - 1], childDepth]);
  }
  return tree.toString();
}

function measure(parse, seconds, list) {
  const pages = readFileSync(list, 'utf8').split('\n').filter(Boolean).map((path) => readFileSync(path));
  let failed = 0;
  const onePass = () => {
    failed = 0;
    for (const page of pages) {
      try {
        parse(textOf(page));
      } catch {
        ++failed;
      }
    }
  };
  const processorSeconds = () => {
    const { user, system } = process.cpuUsage();
    return (user + system) / 1e6;
  };
  onePass();
  const wall = performance.now();
  const start = processorSeconds();
  let passes = 0;
  for (; passes < 2 || processorSeconds() - start < seconds; ++passes) onePass();
  const spent = processorSeconds() - start;
  const bytes = pages.reduce((sum, page) => sum + page.length, 0);
  console.log(pages.length, bytes, passes, ((performance.now() - wall) / 1e3).toFixed(6), spent.toFixed(6), 0, failed);
}

function answer(treeOf, markup, context) {
  const tree = treeOf(textOf(markup), context);
  if (tree === null) {
    process.stdout.write('-\n');
    return;
  }
  const bytes = Buffer.from(tree);
  process.stdout.write(Buffer.concat([Buffer.from(`${bytes.length}\n`), bytes]));
}

async function answerCases(treeOf) {
  let input = Buffer.alloc(0);
  for await (const chunk of process.stdin) {
    input = Buffer.concat([input, chunk]);
    for (;;) {
      const headEnd = input.indexOf('\n');
      const head = input.toString('utf8', 0, Math.max(headEnd, 0));
      const caseEnd = headEnd + 1 + Number.parseInt(head, 10);
      if (headEnd < 0 || input.length < caseEnd) break;
      answer(treeOf, input.subarray(headEnd + 1, caseEnd), head.slice(head.indexOf(' ') + 1));
      input = input.subarray(caseEnd);
    }
  }
}

/** The whole of a peer. `treeOf(markup, context)` answers null where the parser has no means for such content. */
export async function runPeer(parse, treeOf) {
  const [mode, list] = process.argv.slice(2);
  if (mode === '--cases') await answerCases(treeOf);
  else measure(parse, Number(mode), list);
}
