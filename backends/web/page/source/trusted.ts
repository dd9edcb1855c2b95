// Browsers that enforce Trusted Types accept the address of a script only from a named policy. The page has one such
// address, that of the service worker.
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
