// htmlparser2, which makes a tree of the tags as they stand: it adds no elements, moves none, knows no vocabularies and no contexts, and keeps
// a document type as text.
import { parseDocument } from 'htmlparser2';
import { runPeer, treeText } from './PeerLoop.mjs';

function show(tree, node, depth) {
  switch (node.type) {
    case 'directive':
      tree.line(depth, `<${node.data.replace(/^!doctype/i, '!DOCTYPE')}>`);
      return undefined;
    case 'comment':
      tree.line(depth, `<!-- ${node.data} -->`);
      return undefined;
    case 'text':
      tree.text(depth, node.data);
      return undefined;
    case 'cdata':
      return [node.children, depth];
    default:
      tree.element(depth, node.name, Object.entries(node.attribs));
      return [node.children, depth + 1];
  }
}

await runPeer(parseDocument, (markup, context) => (context ? null : treeText(parseDocument(markup).children, show)));
