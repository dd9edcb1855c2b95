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
            // A handler may be an arrow that hands the call on.
            '@typescript-eslint/no-confusing-void-expression': ['error', { ignoreArrowShorthand: true }],
            // The program's numbers become enums where its records are read.
            '@typescript-eslint/no-unsafe-enum-assignment': 'off',
            // Numbers in texts are meant.
            '@typescript-eslint/restrict-template-expressions': ['error', { allowNumber: true }],
            // The compiler asks for the brackets.
            '@typescript-eslint/dot-notation': ['error', { allowIndexSignaturePropertyAccess: true }],
            // Waiting in turn is the point of most loops that wait, and a loop that ends by a return is plain.
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
                // What is said to a page in a test runs there.
                ...Object.fromEntries(
                    [
                        'document',
                        'window',
                        'location',
                        'localStorage',
                        'navigator',
                        'caches',
                        'crypto',
                        'innerWidth',
                        'innerHeight',
                        'sessionStorage',
                    ].map((name) => [name, 'readonly']),
                ),
            },
        },
    },
);
