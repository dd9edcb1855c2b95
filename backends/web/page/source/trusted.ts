// Addresses of scripts, for browsers that want to be told by a policy that one is the page's own. The page has a single one
// that it hands over by itself, the service worker's.
const serviceWorker = 'service-worker.js';

interface Policy {
    createScriptURL(address: string): string;
}

interface PolicyFactory {
    createPolicy(name: string, rules: Policy): Policy;
}

function ownAddress(address: string): string {
    if (address !== serviceWorker) throw new TypeError(`${address} is no script of this page.`);
    return address;
}

export function serviceWorkerAddress(): string {
    const { trustedTypes } = globalThis as { trustedTypes?: PolicyFactory };
    const policy = trustedTypes?.createPolicy('prismfall', { createScriptURL: ownAddress });
    return policy ? policy.createScriptURL(serviceWorker) : serviceWorker;
}
