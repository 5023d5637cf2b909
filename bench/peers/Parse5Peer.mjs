// parse5, which builds trees by the HTML standard.
import { defaultTreeAdapter, html, parse, parseFragment } from 'parse5';
import { runPeer, treeText } from './PeerLoop.mjs';

const options = { scriptingEnabled: false };
const namespaces = { svg: html.NS.SVG, math: html.NS.MATHML };
const shownNamespaces = {
  [html.NS.SVG]: 'svg ',
  [html.NS.MATHML]: 'math ',
  [html.NS.XLINK]: 'xlink ',
  [html.NS.XML]: 'xml ',
  [html.NS.XMLNS]: 'xmlns ',
};
const shownName = (namespace, name) => `${shownNamespaces[namespace] ?? ''}${name}`;

function show(tree, node, depth) {
  switch (node.nodeName) {
    case '#documentType': {
      const ids = node.publicId || node.systemId ? ` "${node.publicId}" "${node.systemId}"` : '';
      tree.line(depth, `<!DOCTYPE ${node.name}${ids}>`);
      return undefined;
    }
    case '#comment':
      tree.line(depth, `<!-- ${node.data} -->`);
      return undefined;
    case '#text':
      tree.text(depth, node.value);
      return undefined;
    default:
  }
  const attributes = node.attrs.map(({ namespace, name, value }) => [shownName(namespace, name), value]);
  tree.element(depth, shownName(node.namespaceURI, node.tagName), attributes);
  if (!node.content) return [node.childNodes, depth + 1];
  tree.line(depth + 1, 'content');
  return [node.content.childNodes, depth + 2];
}

function treeOf(markup, context) {
  if (!context) return treeText(parse(markup, options).childNodes, show);
  const [name, vocabulary] = context.split(' ').reverse();
  const element = defaultTreeAdapter.createElement(name, namespaces[vocabulary] ?? html.NS.HTML, []);
  return treeText(parseFragment(element, markup, options).childNodes, show);
}

await runPeer((page) => parse(page, options), treeOf);
