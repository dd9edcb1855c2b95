// Every exception has its reason next to it.
import js from '@eslint/js';
import tseslint from 'typescript-eslint';

export default tseslint.config(
    { ignores: ['build/', 'node_modules/'] },
    js.configs.recommended,
    {
        files: ['**/*.ts'],
        extends: [tseslint.configs.strictTypeChecked, tseslint.configs.stylisticTypeChecked],
        languageOptions: { parserOptions: { projectService: true } },
        rules: {
            // A handler may be an arrow function that passes the call on.
            '@typescript-eslint/no-confusing-void-expression': ['error', { ignoreArrowShorthand: true }],
            // The program's numbers become enums where its records are read.
            '@typescript-eslint/no-unsafe-enum-assignment': 'off',
            // Numbers in texts are intended.
            '@typescript-eslint/restrict-template-expressions': ['error', { allowNumber: true }],
            // The compiler requires the brackets.
            '@typescript-eslint/dot-notation': ['error', { allowIndexSignaturePropertyAccess: true }],
            // Most loops that wait have to wait one step at a time, and a loop that ends with a return is easy to read.
            '@typescript-eslint/no-unnecessary-condition': ['error', { allowConstantLoopConditions: true }],
        },
    },
    {
        files: ['**/*.mjs'],
        languageOptions: {
            globals: {
                ...Object.fromEntries(
                    ['process', 'console', 'URL', 'Buffer', 'fetch', 'setTimeout', 'performance', 'WebAssembly'].map(
                        (name) => [name, 'readonly'],
                    ),
                ),
                // Functions that a test passes to a page run there.
                ...Object.fromEntries(
                    [
                        'document',
                        'window',
                        'location',
                        'CSSStyleSheet',
                        'localStorage',
                        'navigator',
                        'caches',
                        'crypto',
                        'innerWidth',
                        'innerHeight',
                        'sessionStorage',
                        'CanvasRenderingContext2D',
                        'IDBObjectStore',
                        'indexedDB',
                        'DOMException',
                        'CSSStyleSheet',
                        'Event',
                    ].map((name) => [name, 'readonly']),
                ),
            },
        },
    },
);
